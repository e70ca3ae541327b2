#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>

#include "text/integers.h"
#include "workbench/desk.h"

namespace kov {
namespace {

/// The factors of a table up to its used length, blank-separated.
std::string factors(const Desk& desk, int table) {
  const Algadd& algadd = desk.workbench.document.algadd;
  std::string text;
  for (int i = 0; i < algadd.used_length(table); ++i) {
    text += (i == 0 ? "" : " ") + to_text(algadd.entry(table, i).p);
  }
  return text;
}

void set_factor(Desk& desk, int table, int i, const cotyp& p) {
  AlgaddEntry entry;
  entry.p = p;
  desk.algadd().set_entry(table, i, entry);
}

/// Table 2 is current and holds 1/2, nothing, -1, 3i.
struct TableDesk : Desk {
  TableDesk() {
    algadd().set_aanr(2);
    set_factor(*this, 2, 0, cotyp(1, 2, 0, 1));
    set_factor(*this, 2, 2, cotyp(-1));
    set_factor(*this, 2, 3, cotyp(0, 1, 3, 1));
  }
};

TEST(AlgaddTable, CopyTableChangesToTheCopy) {
  TableDesk desk;
  EXPECT_EQ(
      desk.run_text("Algadd", "CopyTable", {"9"}),
      dialog_report("Copy Algadd Table",
                    "To copy current Algadd table\nto Algadd table index i\nand then change Algadd table "
                    "index to i\nenter integer i [0<=i<=15]",
                    "9"));
  EXPECT_EQ(desk.algadd().aanr(), 9);
  EXPECT_EQ(factors(desk, 9), "1/2 0 -1 3i");
  EXPECT_EQ(desk.document().cph.kmi("Algadd_DefaultTableIndex"), 0);
}

TEST(AlgaddTable, PresetsFollowTheParameterTheSelectionAndTheCurrentEntry) {
  TableDesk desk;
  desk.document().cph.setkmi_1("Algadd_DefaultTableIndex", 11);
  desk.algadd().select(3, 250);
  desk.workbench.current_entry = 17;
  const std::pair<const char*, const char*> rows[] = {
      {"CopyTable", "11"},
      {"ChooseNr", "11"},
      {"Select_p", "3,250"},
      {"CopyEntry", "17"},
  };
  for (const auto& [item, preset] : rows) EXPECT_EQ(desk.preset("Algadd", item), preset) << item;
}

TEST(AlgaddTable, EraseTableErasesTheCurrentOne) {
  TableDesk desk;
  set_factor(desk, 3, 0, cotyp(1));
  EXPECT_EQ(desk.run_text("Algadd", "EraseTable"), "");
  EXPECT_EQ(factors(desk, 2), "");
  EXPECT_EQ(factors(desk, 3), "1");
}

struct FactorCase {
  const char* item;
  const char* caption;
  const char* prompt;
  const char* answer;
  const char* factors;
};

class Factor : public testing::TestWithParam<FactorCase> {};

TEST_P(Factor, AsksForANumberAndChangesTheCurrentTable) {
  TableDesk desk;
  set_factor(desk, 1, 0, cotyp(5));
  desk.algadd().select(2, 4);
  const FactorCase& c = GetParam();
  EXPECT_EQ(desk.run_text("Algadd", c.item, {c.answer}),
            dialog_report(c.caption, std::string(c.prompt) + "\nenter complex number c", c.answer));
  EXPECT_EQ(factors(desk, 2), c.factors);
  EXPECT_EQ(factors(desk, 1), "5");
}

TEST_P(Factor, Presets1) {
  TableDesk desk;
  EXPECT_EQ(desk.preset("Algadd", GetParam().item), "1");
}

TEST_P(Factor, ChangesNothingWhenItIsCancelled) {
  TableDesk desk;
  desk.run("Algadd", GetParam().item);
  desk.run("Algadd", GetParam().item, {"1/0"});
  EXPECT_EQ(factors(desk, 2), "1/2 0 -1 3i");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(AlgaddTable, Factor, testing::Values(
    FactorCase{"MultiplyAll_p",      "Multiply all p",      "To multiply all p of Algadd2\n by a number c",                                                       "2i", "1i 0 -2i -6"},
    FactorCase{"Mult_all_pabsnot1",  "Multiply all p",      "To multiply all p with |p|!=1\n of Algadd2\n by a number c",                                         "2",  "1 0 -1 6i"},
    FactorCase{"MultiplySelected_p", "Multiply selected p", "All p of entries 2..4 are selected.\nTo multiply the selected p of Algadd2\n by a number c",         "2",  "1/2 0 -2 6i"},
    FactorCase{"SetSelected_p",      "Set selected p",      "All p of entries 2..4 are selected.\nTo set the selected p of Algadd2\n to a number c",              "7",  "1/2 0 7 7 7"}));
// clang-format on

TEST(AlgaddTable, AProductThatIsNotFiniteIsReportedAndTheTableStays) {
  TableDesk desk;
  set_factor(desk, 2, 3, cotyp::floating(std::numeric_limits<double>::max(), 0.0));
  const std::string before = factors(desk, 2);
  const auto reports = desk.run("Algadd", "MultiplyAll_p", {"1.5"});
  ASSERT_EQ(reports.size(), 3U);
  EXPECT_EQ(reports[2].substr(0, 35), "error: MathError in MultiplyAll_p:\n");
  EXPECT_EQ(factors(desk, 2), before);
}

TEST(AlgaddTable, SelectTakesTwoEntryNumbers) {
  Desk desk;
  EXPECT_EQ(desk.run_text("Algadd", "Select_p", {"3, 5"}),
            dialog_report("Select p",
                          "To select p of entries with entry number a<=n<=b\nenter the two integers   a,b",
                          "3, 5"));
  EXPECT_EQ(desk.algadd().selected_first(), 3);
  EXPECT_EQ(desk.algadd().selected_last(), 5);
  for (const char* answer : {"0,256", "-1,5", "3", "3,4,5", "5,3"}) {
    EXPECT_EQ(desk.run("Algadd", "Select_p", {answer}).back(), std::string("refused: ") + answer);
  }
  EXPECT_EQ(desk.algadd().selected_last(), 5);
}

TEST(AlgaddTable, ChooseNrSetsTheCurrentTableOnly) {
  Desk desk;
  EXPECT_EQ(desk.run_text("Algadd", "ChooseNr", {"4"}),
            dialog_report("Algadd Nr.", "To choose Algadd table index\nenter integer i [0<=i<=15]", "4"));
  EXPECT_EQ(desk.algadd().aanr(), 4);
  EXPECT_EQ(desk.document().cph.kmi("Algadd_DefaultTableIndex"), 0);
}

TEST(AlgaddTable, CopyEntryCopiesTheCurrentEntry) {
  TableDesk desk;
  desk.workbench.current_entry = 3;
  EXPECT_EQ(
      desk.run_text("Algadd", "CopyEntry", {"1"}),
      dialog_report("Copy Algadd Entry",
                    "To copy current Algadd entry\nto Algadd entry i\n\nenter integer i [0<=i<=255]", "1"));
  EXPECT_EQ(factors(desk, 2), "1/2 3i -1 3i");
  EXPECT_EQ(desk.run("Algadd", "CopyEntry", {"256"}).back(), "refused: 256");
}

struct EntryCase {
  const char* item;
  int entry;
  const char* factors;
};

class EntryCommand : public testing::TestWithParam<EntryCase> {};

TEST_P(EntryCommand, ChangesTheCurrentTableWithoutAsking) {
  TableDesk desk;
  desk.workbench.current_entry = GetParam().entry;
  EXPECT_EQ(desk.run_text("Algadd", GetParam().item), "");
  EXPECT_EQ(factors(desk, 2), GetParam().factors);
}

INSTANTIATE_TEST_SUITE_P(AlgaddTable, EntryCommand,
                         testing::Values(EntryCase{"EraseEntry", 2, "1/2 0 0 3i"},
                                         EntryCase{"RemoveEntry", 0, "0 -1 3i"},
                                         EntryCase{"RemoveEntry", 2, "1/2 0 3i"},
                                         EntryCase{"InsertEntry", 2, "1/2 0 0 -1 3i"},
                                         EntryCase{"RenumberEntries", 0, "1/2 -1 3i"}));

TEST(AlgaddTable, InsertEntryAsksBeforeTheLastOneIsLost) {
  TableDesk desk;
  set_factor(desk, 2, 255, cotyp(9));
  constexpr const char* question =
      "Insertion will cause deletion\nof last nonempty entry 255\nDo you want to proceed?";
  EXPECT_EQ(desk.run_text("Algadd", "InsertEntry", {"no"}), question_report(question, "no"));
  EXPECT_EQ(desk.algadd().used_length(2), 256);
  EXPECT_EQ(desk.run_text("Algadd", "InsertEntry", {"yes"}), question_report(question, "yes"));
  EXPECT_EQ(factors(desk, 2), "0 1/2 0 -1 3i");
}

TEST(AlgaddTable, RemoveTableMovesTheOthersDown) {
  TableDesk desk;
  set_factor(desk, 3, 0, cotyp(3));
  set_factor(desk, 15, 0, cotyp(15));
  EXPECT_EQ(desk.run_text("Algadd", "RemoveTable"), "");
  EXPECT_EQ(factors(desk, 2), "3");
  EXPECT_EQ(factors(desk, 14), "15");
  EXPECT_EQ(factors(desk, 15), "");
}

TEST(AlgaddTable, InsertTableAsksBeforeTheLastOneIsLost) {
  TableDesk desk;
  EXPECT_EQ(desk.run_text("Algadd", "InsertTable"), "") << "table 15 is empty";
  EXPECT_EQ(factors(desk, 2), "");
  EXPECT_EQ(factors(desk, 3), "1/2 0 -1 3i");
  set_factor(desk, 15, 0, cotyp(15));
  constexpr const char* question =
      "Insertion will cause deletion\nof last nonempty table 15\nDo you want to proceed?";
  EXPECT_EQ(desk.run_text("Algadd", "InsertTable", {"no"}), question_report(question, "no"));
  EXPECT_EQ(factors(desk, 15), "15");
  EXPECT_EQ(desk.run_text("Algadd", "InsertTable", {"yes"}), question_report(question, "yes"));
  EXPECT_EQ(factors(desk, 15), "");
  EXPECT_EQ(factors(desk, 4), "1/2 0 -1 3i");
}

TEST(AlgaddTable, RenumberTablesClosesTheGapsAndKeepsTheCurrentTable) {
  TableDesk desk;
  set_factor(desk, 7, 0, cotyp(7));
  EXPECT_EQ(desk.run_text("Algadd", "RenumberTables"), "");
  EXPECT_EQ(factors(desk, 0), "1/2 0 -1 3i");
  EXPECT_EQ(factors(desk, 1), "7");
  EXPECT_EQ(desk.algadd().aanr(), 0);
  desk.document().cph.setkmi_1("Algadd_del_p0_entries", 1);
  desk.run("Algadd", "RenumberTables");
  EXPECT_EQ(factors(desk, 0), "1/2 -1 3i");
}

TEST(AlgaddTable, CloseHidesTheMenu) {
  Desk desk;
  desk.workbench.algadd_menu_open = true;
  EXPECT_EQ(desk.run_text("Algadd", "Close"), "");
  EXPECT_FALSE(desk.workbench.algadd_menu_open);
}

}  // namespace
}  // namespace kov
