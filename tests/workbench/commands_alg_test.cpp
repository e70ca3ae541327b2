#include <gtest/gtest.h>

#include <string>

#include "workbench/desk.h"

namespace kov {
namespace {

constexpr const char* all_but_last_intro =
    "DelAllButLast: to save maximal memory, after every step\nall lattice points except those with n=nlast\n"
    "(history) will be deleted\n";
constexpr const char* outside_intro =
    "To save memory, after every step\nall lattice points outside\nthe current Sums1 table\nwith n<nlast "
    "will be "
    "deleted.\nSo history of current Sums1 definition\nremains available.\n";
constexpr const char* tracking_intro =
    "To save memory, after every step\nall lattice points outside\nthe current Sums1 table\nwith n<nlast "
    "will be "
    "deleted.\nSo history of current Sums1 definition\nremains available.\n\nAdditionally the smallest "
    "30\npercent "
    "of the last row nlast are deleted\niteratively every time when more\nthan 100000 KB are used.\n";

struct StartCase {
  const char* item;
  int table;
  const char* intro;
  /// The rows left of a start in row 0 after two steps, each of which halves the quantity.
  const char* rows;
};

class Start : public testing::TestWithParam<StartCase> {};

TEST_P(Start, RunsItsTableInItsModeForTheStepsAskedFor) {
  Desk desk;
  const StartCase& c = GetParam();
  desk.set_halving_entry(c.table);
  desk.algadd().set_aanr(c.table);
  desk.fill_rows(0, 0);
  const std::string prompt = std::string(c.intro) + "\nFor i iterations of  Algadd" +
                             std::to_string(c.table) + "  from n=0 on\nenter integer i [0<=i]";
  EXPECT_EQ(desk.run_text("Alg", c.item, {"2"}), dialog_report("Perform Algadd", prompt, "2"));
  EXPECT_EQ(desk.rows(), c.rows);
  EXPECT_EQ(desk.person.caption().substr(0, 10), "nlast = 2 ");
}

TEST_P(Start, IsDisabledWhileItsTableIsEmpty) {
  Desk desk;
  const StartCase& c = GetParam();
  desk.algadd().set_aanr(c.table);
  EXPECT_FALSE(desk.enabled("Alg", c.item));
  desk.set_halving_entry((c.table + 1) % Algadd_TableCount);
  EXPECT_FALSE(desk.enabled("Alg", c.item));
  desk.set_halving_entry(c.table);
  EXPECT_TRUE(desk.enabled("Alg", c.item));
}

TEST_P(Start, PresetsTheDefaultNumberOfSteps) {
  Desk desk;
  const StartCase& c = GetParam();
  desk.set_halving_entry(c.table);
  desk.algadd().set_aanr(c.table);
  desk.fill_rows(0, 0);
  desk.document().cph.setkmi_1("Algadd_DefaultStepCount", 33);
  EXPECT_EQ(desk.preset("Alg", c.item), "33");
  EXPECT_EQ(desk.rows(), "0:1");
}

TEST_P(Start, KeepsSilentOnAnEmptyStore) {
  Desk desk;
  const StartCase& c = GetParam();
  desk.set_halving_entry(c.table);
  desk.algadd().set_aanr(c.table);
  EXPECT_EQ(desk.run_text("Alg", c.item), "");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Alg, Start, testing::Values(
    StartCase{"Start Algadd 0",    0,  "",                 "0:1 1:1/2 2:1/4"},
    StartCase{"Start Algadd 1",    1,  "",                 "0:1 1:1/2 2:1/4"},
    StartCase{"Start Algadd 2",    2,  "",                 "0:1 1:1/2 2:1/4"},
    StartCase{"Start Algadd",      7,  "",                 "0:1 1:1/2 2:1/4"},
    StartCase{"Algadd with del",   3,  all_but_last_intro, "2:1/4"},
    StartCase{"AA del outside S1", 4,  outside_intro,      "0:1 2:1/4"},
    StartCase{"AA Tracking Mode",  15, tracking_intro,     "0:1 2:1/4"}));
// clang-format on

TEST(Alg, StartOfATableByNumberIgnoresTheCurrentOne) {
  Desk desk;
  desk.set_halving_entry(1);
  desk.algadd().set_aanr(9);
  desk.fill_rows(0, 0);
  desk.run("Alg", "Start Algadd 1", {"1"});
  EXPECT_EQ(desk.rows(), "0:1 1:1/2");
}

TEST(Alg, OutsideModesKeepTheCurrentRanges) {
  Desk desk;
  desk.set_halving_entry(0);
  desk.document().ranges.table(5).range[1] = {Lk::at(0, 1, 0), Lk::at(0, 1, 5)};
  desk.document().ranges.choose(5);
  desk.fill_rows(0, 0);
  desk.run("Alg", "AA del outside S1", {"3"});
  EXPECT_EQ(desk.rows(), "0:1 1:1/2 3:1/8");
}

TEST(Alg, ChangeNrSetsTheCurrentTableOnly) {
  Desk desk;
  EXPECT_EQ(desk.caption("Alg", "Change Algadd Nr"), "Change aanr=0");
  EXPECT_EQ(desk.run_text("Alg", "Change Algadd Nr", {"12"}),
            dialog_report("Algadd Nr.", "To choose Algadd table index\nenter integer i [0<=i<=15]", "12"));
  EXPECT_EQ(desk.algadd().aanr(), 12);
  EXPECT_EQ(desk.document().cph.kmi("Algadd_DefaultTableIndex"), 0);
  EXPECT_EQ(desk.caption("Alg", "Change Algadd Nr"), "Change aanr=12");
  EXPECT_EQ(desk.caption("Alg", "Start Algadd"), "Start Algadd 12");
}

TEST(Alg, ChangeNrPresetsTheDefaultTable) {
  Desk desk;
  desk.document().cph.setkmi_1("Algadd_DefaultTableIndex", 11);
  desk.algadd().set_aanr(4);
  EXPECT_EQ(desk.preset("Alg", "Change Algadd Nr"), "11");
}

TEST(Alg, ChangeNrRefusesATableThatDoesNotExist) {
  Desk desk;
  for (const char* answer : {"16", "-1", "x", ""}) {
    const auto reports = desk.run("Alg", "Change Algadd Nr", {answer});
    EXPECT_EQ(reports.back(), std::string("refused: ") + answer);
    EXPECT_EQ(desk.algadd().aanr(), 0);
  }
}

TEST(Alg, DelAndDoDeletesTheRowsBehind0AndRunsTheDefaultSteps) {
  Desk desk;
  desk.set_halving_entry(0);
  desk.document().cph.setkmi_1("Algadd_DefaultStepCount", 3);
  EXPECT_EQ(desk.caption("Alg", "DelAndDo Algadd Steps"), "Del n>0, then 3 AA");
  desk.fill_rows(-1, 5);
  EXPECT_EQ(desk.run_text("Alg", "DelAndDo Algadd Steps"), "");
  EXPECT_EQ(desk.rows(), "0:1 1:1/2 2:1/4 3:1/8");
}

TEST(Alg, DelAfterFirstKeepsTheFirstRowAndRunsTheDefaultSteps) {
  Desk desk;
  desk.set_halving_entry(0);
  desk.document().cph.setkmi_1("Algadd_DefaultStepCount", 2);
  desk.fill_rows(3, 6);
  EXPECT_EQ(desk.caption("Alg", "Del after nfirst and do Algadd"), "Del n>nf=3, 2 AA");
  EXPECT_EQ(desk.run_text("Alg", "Del after nfirst and do Algadd"), "");
  EXPECT_EQ(desk.rows(), "3:4 4:2 5:1");
}

TEST(Alg, DelAfterFirstSaysThatTheLatticesAreEmpty) {
  Desk desk;
  desk.set_halving_entry(0);
  EXPECT_EQ(desk.caption("Alg", "Del after nfirst and do Algadd"), "<Lattices empty>");
  EXPECT_EQ(desk.run_text("Alg", "Del after nfirst and do Algadd"), "message:  Lattices are empty. ");
}

TEST(Alg, DelAndDoKeepsSilentOnAnEmptyStore) {
  Desk desk;
  desk.set_halving_entry(0);
  EXPECT_EQ(desk.run_text("Alg", "DelAndDo Algadd Steps"), "");
}

TEST(Alg, ChangingCommandsOfDefaultStepsAreDisabledWithAnEmptyTable) {
  const Desk desk;
  EXPECT_FALSE(desk.enabled("Alg", "DelAndDo Algadd Steps"));
  EXPECT_FALSE(desk.enabled("Alg", "Del after nfirst and do Algadd"));
  EXPECT_TRUE(desk.enabled("Alg", "Change Algadd Nr"));
}

TEST(Alg, NoStepsOrACancelledDialogChangeNothing) {
  Desk desk;
  desk.set_halving_entry(0);
  desk.fill_rows(0, 1);
  desk.person.set_caption("as it was");
  desk.run("Alg", "Algadd with del", {"0"});
  desk.run("Alg", "Algadd with del");
  EXPECT_EQ(desk.rows(), "0:1 1:2");
  EXPECT_EQ(desk.person.caption(), "as it was");
}

TEST(Alg, BreakStopsARunAfterItsStep) {
  Desk desk;
  desk.set_halving_entry(0);
  desk.fill_rows(0, 0);
  desk.person.break_at_check(2);
  desk.run("Alg", "Algadd with del", {"10"});
  EXPECT_EQ(desk.rows(), "2:1/4");
}

}  // namespace
}  // namespace kov
