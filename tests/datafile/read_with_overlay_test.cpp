#include "datafile/read_with_overlay.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <set>
#include <string>
#include <vector>

#include "file_desk.h"
#include "support/failing_allocation.h"
#include "support/points_text.h"

namespace kov {
namespace {

/// A uniform configuration and a data file that differ in a "u" entry and in another one.
struct Overlay : ::testing::Test {
  Overlay() {
    write_text("kovcfg.aa1", "Slq_ColCount 30 2 1000 1\nGraph2a_ny 3 -99 99 0\n\"uniform comment\n");
    write_text("data.aa1", "Slq_ColCount 25 2 1000 1\nGraph2a_ny 5 -99 99 0\n\"comment\n" +
                               point_line(0, 0, 0, "1") + "\n" + point_line(0, 1, 0, "1") + "\n");
  }
  int kmi(const char* keyword) const { return desk.document.cph.kmi(keyword); }

  FileDesk desk;
};

TEST_F(Overlay, OfTheUniformEntriesWinsOverTheFilesOwn) {
  EXPECT_EQ(read_with_overlay(desk.context(), "data.aa1", every_step), ReadOutcome::completed);
  EXPECT_EQ(kmi("Slq_ColCount"), 30);
  EXPECT_EQ(kmi("Graph2a_ny"), 5);
  EXPECT_EQ(desk.document.comment, "comment\r\n");
  EXPECT_EQ(desk.document.lmap.count(), 2U);
  EXPECT_EQ(desk.current.name(), "data.aa1");
  EXPECT_EQ(desk.applied, 1);
}

TEST_F(Overlay, IsNotLaidByAnIndividualRead) {
  EXPECT_EQ(read_and_apply(desk.context(), "data.aa1", every_step), ReadOutcome::completed);
  EXPECT_EQ(kmi("Slq_ColCount"), 25);
  EXPECT_EQ(desk.applied, 1);
}

TEST_F(Overlay, IsNotLaidWithoutAUniformFile) {
  std::filesystem::remove("kovcfg.aa1");
  EXPECT_EQ(read_with_overlay(desk.context(), "data.aa1", every_step), ReadOutcome::completed);
  EXPECT_EQ(kmi("Slq_ColCount"), 25);
  EXPECT_EQ(desk.applied, 1);
}

TEST_F(Overlay, IsLaidOverAFileReadUpToAStep) {
  EXPECT_EQ(read_with_overlay(desk.context(), "data.aa1", 0), ReadOutcome::completed);
  EXPECT_EQ(points_text(desk.document.lmap), "0 0: 1\n");
  EXPECT_EQ(kmi("Slq_ColCount"), 30);
  EXPECT_EQ(kmi("Graph2a_ny"), 5);
}

TEST_F(Overlay, IsLaidOverTheDefaultsOfAnAbortedRead) {
  write_text("data.aa1", "Graph2a_ny 5 -99 99 0\ne_l x\n");
  desk.current.chosen = true;
  desk.scripted.set_answers({"no"});
  EXPECT_EQ(read_with_overlay(desk.context(), "data.aa1", every_step), ReadOutcome::aborted);
  EXPECT_EQ(kmi("Slq_ColCount"), 30);
  EXPECT_EQ(kmi("Graph2a_ny"), 0);
  EXPECT_EQ(desk.applied, 1);
}

TEST_F(Overlay, IsNotLaidWhenTheFileIsNotOpened) {
  EXPECT_EQ(read_with_overlay(desk.context(), "none.aa1", every_step), ReadOutcome::not_opened);
  EXPECT_EQ(kmi("Slq_ColCount"), 20);
  EXPECT_EQ(desk.applied, 0);
  EXPECT_EQ(desk.pages_shown, 0);
}

TEST_F(Overlay, AppliesNothingBeforeTheUniformEntriesAreRead) {
  std::vector<int> seen;
  FileContext context = desk.context();
  context.apply = [&] { seen.push_back(kmi("Slq_ColCount")); };
  read_with_overlay(context, "data.aa1", every_step);
  EXPECT_EQ(seen, std::vector<int>{30});
}

TEST_F(Overlay, ThatIsAbortedLeavesTheDefaultsAndTheDataOfTheFile) {
  write_text("kovcfg.aa1", "Slq_ColCount 30 2 1000 1\nSlq_RowCount x 2 2000 1\n");
  desk.scripted.set_answers({"no"});
  EXPECT_EQ(read_with_overlay(desk.context(), "data.aa1", every_step), ReadOutcome::completed);
  EXPECT_EQ(kmi("Slq_ColCount"), 20);
  EXPECT_EQ(kmi("Graph2a_ny"), 0);
  EXPECT_EQ(desk.document.lmap.count(), 2U);
  EXPECT_EQ(desk.document.comment, "comment\r\n");
  EXPECT_EQ(desk.current.name(), "data.aa1");
  EXPECT_TRUE(desk.current.chosen);
  EXPECT_FALSE(desk.current.read_aborted) << "the data file itself is complete";
  EXPECT_EQ(desk.applied, 1);
  EXPECT_EQ(desk.pages_shown, 1);
}

TEST_F(Overlay, OfAReadThatEndsInAnExceptionAppliesTheDefaultsOnce) {
  std::vector<int> seen;
  FileContext context = desk.context();
  context.apply = [&] { seen.push_back(kmi("Graph2a_ny")); };
  struct Interrupted {};
  desk.scripted.set_interrupted([]() -> bool { throw Interrupted(); });
  desk.document.cph.setkmi_1("File_IO_PointCountPerDisplay", 1);
  EXPECT_THROW(read_with_overlay(context, "data.aa1", every_step), Interrupted);
  EXPECT_EQ(seen, std::vector<int>{0});
  EXPECT_EQ(desk.pages_shown, 1);
  EXPECT_TRUE(desk.document.lmap.empty());
}

/// Which value closes the gaps in the tables: that of the file, of the uniform configuration, or none.
struct GapCase {
  const char* of_file;
  const char* of_uniform_file;
  bool individual;
  bool closed;
};

class Gaps : public Overlay, public ::testing::WithParamInterface<GapCase> {};

TEST_P(Gaps, AreClosedByTheValueThatIsInForceInTheEnd) {
  const std::string keyword = "Algadd_del_p0_entries ";
  const std::string fields = " 1 0 " + repeated("0", 32) + "\n";
  const GapCase& c = GetParam();
  write_text("data.aa1", "e_aa 0 7" + fields + keyword + c.of_file + " 0 1 1\n" + "e_aa 15 255" + fields);
  write_text("kovcfg.aa1", keyword + c.of_uniform_file + " 0 1 1\n");
  const auto read = c.individual ? read_and_apply : read_with_overlay;
  FileContext context = desk.context();
  int length_when_applied = 0;
  context.apply = [&] { length_when_applied = desk.document.algadd.used_length(0); };
  EXPECT_EQ(read(context, "data.aa1", every_step), ReadOutcome::completed);
  EXPECT_EQ(desk.document.algadd.used_length(0), c.closed ? 1 : 8);
  EXPECT_EQ(desk.document.algadd.used_length(15), c.closed ? 1 : 256);
  EXPECT_EQ(length_when_applied, c.closed ? 1 : 8);
}

INSTANTIATE_TEST_SUITE_P(Overlay, Gaps,
                         ::testing::Values(GapCase{"0", "1", false, true}, GapCase{"1", "0", false, false},
                                           GapCase{"1", "1", false, true}, GapCase{"0", "0", false, false},
                                           GapCase{"0", "1", true, false}, GapCase{"1", "0", true, true}));

TEST_F(Overlay, GapsStayWhenAConfigurationAloneIsRead) {
  desk.document.algadd.set_entry(0, 7, {.p = cotyp(1), .ldest = 0, .offset = Lk()});
  write_text("kovcfg.aa1", "Algadd_del_p0_entries 1 0 1 1\n");
  read_uniform_configuration(desk.context());
  reset_configuration(desk.context());
  EXPECT_EQ(kmi("Algadd_del_p0_entries"), 1);
  EXPECT_EQ(desk.document.algadd.used_length(0), 8);
}

/// What a command that reads may leave when its memory runs out at one allocation or another.
struct OutOfMemory : Overlay {
  /// Runs the command with each of its allocations failing in turn, on a document that is filled.
  template <class Command>
  void fail_each_allocation(const Command& command, const std::vector<std::string>& states) {
    std::set<std::string> seen;
    for (std::int64_t k = 1;; ++k) {
      fill_every_part(desk.document);
      const std::string before = desk.state();
      const FileContext context = desk.context();
      desk.applied = desk.pages_shown = 0;
      bool failed = false;
      try {
        const FailingAllocation failing(k);
        command(context);
        if (!failing.happened()) break;
      } catch (const std::bad_alloc&) {
        failed = true;
      }
      const std::string after = desk.state();
      seen.insert(after);
      EXPECT_TRUE(!failed || after == before || std::count(states.begin(), states.end(), after) == 1) << k;
      EXPECT_EQ(desk.applied, after == before ? 0 : 1) << k;
      EXPECT_FALSE(desk.scripted.is_open());
    }
    for (const std::string& state : states) EXPECT_TRUE(seen.contains(state)) << state;
  }

  /// The state after a change of the start-up state.
  template <class Change>
  static std::string state_after(const Change& change) {
    FileDesk other;
    change(other);
    return other.state();
  }
};

TEST_F(OutOfMemory, InAReadWithOverlayLeavesAWholeStateWhoseValuesAreApplied) {
  const auto read_data = [](FileDesk& other) {
    other.read_text("Slq_ColCount 25 2 1000 1\nGraph2a_ny 5 -99 99 0\n\"comment\n" +
                    point_line(0, 0, 0, "1") + "\n" + point_line(0, 1, 0, "1") + "\n");
  };
  const std::string at_start = state_after([](FileDesk&) {});
  const std::string without_overlay = state_after(read_data);
  const std::string in_overlay = state_after([&](FileDesk& other) {
    read_data(other);
    other.document.cph.InitPrgPar(other.window);
  });
  fail_each_allocation([](const FileContext& context) { read_with_overlay(context, "data.aa1", every_step); },
                       {at_start, without_overlay, in_overlay});
  EXPECT_EQ(kmi("Slq_ColCount"), 30) << "the last run, which no allocation failed";
}

TEST_F(OutOfMemory, InAReadOfTheConfigurationLeavesTheDefaultsAndTheData) {
  const std::string defaults = state_after([](FileDesk& other) {
    fill_every_part(other.document);
    other.document.cph.InitPrgPar(other.window);
  });
  fail_each_allocation(read_uniform_configuration, {defaults});
  fail_each_allocation(reset_configuration, {defaults});
}

TEST_F(Overlay, AtStartUpTakesEveryEntryAndKeepsTheCurrentFile) {
  read_uniform_configuration(desk.context());
  EXPECT_EQ(kmi("Slq_ColCount"), 30);
  EXPECT_EQ(kmi("Graph2a_ny"), 3);
  EXPECT_EQ(desk.document.comment, "");
  EXPECT_EQ(desk.current.path, "a.aa1");
  EXPECT_FALSE(desk.current.chosen);
  EXPECT_EQ(desk.applied, 1);
}

TEST_F(Overlay, WithoutAUniformFileDoesNothingAtStartUp) {
  std::filesystem::remove("kovcfg.aa1");
  read_uniform_configuration(desk.context());
  EXPECT_EQ(desk.applied, 0);
  EXPECT_EQ(desk.reports, std::vector<std::string>{});
}

TEST_F(Overlay, AfterAResetOfTheConfigurationTakesWhatTheFileChosenFlagSays) {
  for (const bool chosen : {false, true}) {
    desk.current.chosen = chosen;
    desk.document.cph.setkmi_1("Slq_RowCount", 99);
    reset_configuration(desk.context());
    EXPECT_EQ(kmi("Slq_RowCount"), 50);
    EXPECT_EQ(kmi("Slq_ColCount"), 30);
    EXPECT_EQ(kmi("Graph2a_ny"), chosen ? 0 : 3);
  }
  EXPECT_EQ(desk.applied, 2);
  EXPECT_EQ(desk.pages_shown, 2);
}

TEST_F(Overlay, WithoutAUniformFileAResetRestoresTheDefaults) {
  std::filesystem::remove("kovcfg.aa1");
  desk.document.cph.setkmi_1("Slq_ColCount", 99);
  reset_configuration(desk.context());
  EXPECT_EQ(kmi("Slq_ColCount"), 20);
  EXPECT_EQ(desk.applied, 1);
  EXPECT_EQ(desk.pages_shown, 0) << "nothing was read";
}

}  // namespace
}  // namespace kov
