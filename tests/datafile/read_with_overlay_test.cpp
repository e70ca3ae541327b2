#include "datafile/read_with_overlay.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "file_desk.h"
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
  EXPECT_FALSE(desk.document.cph.suppress_applying);
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
  EXPECT_FALSE(desk.document.cph.suppress_applying);
}

TEST_F(Overlay, AppliesNothingBeforeTheUniformEntriesAreRead) {
  std::vector<int> seen;
  FileContext context = desk.context();
  context.apply = [&] { seen.push_back(kmi("Slq_ColCount")); };
  read_with_overlay(context, "data.aa1", every_step);
  EXPECT_EQ(seen, std::vector<int>{30});
}

TEST_F(Overlay, OfAReadThatEndsInAnExceptionReleasesTheSwitch) {
  FileContext context = desk.context();
  struct Interrupted {};
  desk.scripted.set_interrupted([]() -> bool { throw Interrupted(); });
  desk.document.cph.setkmi_1("File_IO_PointCountPerDisplay", 1);
  EXPECT_THROW(read_with_overlay(context, "data.aa1", every_step), Interrupted);
  EXPECT_FALSE(desk.document.cph.suppress_applying);
  EXPECT_TRUE(desk.document.lmap.empty());
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
}

TEST_F(Overlay, WithoutAUniformFileAResetRestoresTheDefaults) {
  std::filesystem::remove("kovcfg.aa1");
  desk.document.cph.setkmi_1("Slq_ColCount", 99);
  reset_configuration(desk.context());
  EXPECT_EQ(kmi("Slq_ColCount"), 20);
  EXPECT_EQ(desk.applied, 1);
}

}  // namespace
}  // namespace kov
