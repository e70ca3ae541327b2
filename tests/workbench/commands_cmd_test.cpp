#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "text/tokens.h"
#include "workbench/desk.h"

namespace kov {
namespace {

struct EditCase {
  const char* item;
  /// Null for a command without a dialog.
  const char* answer;
  /// Of a store of the rows 0 ... 9, in which row n holds the quantity n + 1.
  const char* rows;
};

std::string readable_name(const testing::TestParamInfo<EditCase>& info) {
  std::string name = std::string(info.param.item) + "_" + (info.param.answer ? info.param.answer : "");
  for (char& c : name) {
    if (std::isalnum(static_cast<unsigned char>(c)) == 0) c = '_';
  }
  return name + "_" + std::to_string(info.index);
}

class RowEdit : public testing::TestWithParam<EditCase> {};

TEST_P(RowEdit, ChangesTheRows) {
  Desk desk;
  desk.fill_rows(0, 9);
  const EditCase& c = GetParam();
  desk.run("Cmd", c.item, c.answer ? std::vector<std::string>{c.answer} : std::vector<std::string>{});
  EXPECT_EQ(desk.rows(), c.rows);
  EXPECT_FALSE(desk.person.take_failure());
}

// clang-format off
constexpr const char* all_rows = "0:1 1:2 2:3 3:4 4:5 5:6 6:7 7:8 8:9 9:10";
INSTANTIATE_TEST_SUITE_P(Cmd, RowEdit, testing::Values(
    EditCase{"Move All",             "2",       "2:1 3:2 4:3 5:4 6:5 7:6 8:7 9:8 10:9 11:10"},
    EditCase{"Move All",             "-1",      "-1:1 0:2 1:3 2:4 3:5 4:6 5:7 6:8 7:9 8:10"},
    EditCase{"Move Part",            "0,1,4",   "2:3 3:4 4:1 5:2 6:7 7:8 8:9 9:10"},
    EditCase{"Move Part",            "0,2,1",   "1:1 2:2 3:3 4:5 5:6 6:7 7:8 8:9 9:10"},
    EditCase{"Move Part",            "2,1,5",   all_rows},
    EditCase{"Copy Part",            "0,1,8",   "0:1 1:2 2:3 3:4 4:5 5:6 6:7 7:8 8:1 9:2"},
    EditCase{"Copy Part",            "0,2,1",   "0:1 1:2 2:3 3:3 4:5 5:6 6:7 7:8 8:9 9:10"},
    EditCase{"Copy Part",            "2,1,5",   all_rows},
    EditCase{"Delete All",           nullptr,   ""},
    EditCase{"Delete Part",          "2,7",     "0:1 1:2 8:9 9:10"},
    EditCase{"Delete Part",          "7,2",     all_rows},
    EditCase{"Delete all n>0",       nullptr,   "0:1"},
    EditCase{"Delete all but last",  "2",       "8:9 9:10"},
    EditCase{"Delete all but last",  "0",       ""},
    EditCase{"Delete all but last",  "11",      all_rows},
    EditCase{"dto outside Sums1",    "2",       "0:1 8:9 9:10"},
    EditCase{"dto outside Sums1",    "0",       "0:1"},
    EditCase{"dto outside Sums1",    "10",      all_rows},
    EditCase{"Del nlast",            nullptr,   "0:1 1:2 2:3 3:4 4:5 5:6 6:7 7:8 8:9"},
    EditCase{"Del nlast outside S1", nullptr,   "0:1 1:2 2:3 3:4 4:5 5:6 6:7 7:8 8:9"},
    EditCase{"Ch. last b. 0",        "3",       "-2:8 -1:9 0:10"},
    EditCase{"Ch. last b. 0",        "0",       all_rows},
    EditCase{"Ch. last b. 0",        "-2147483648", all_rows},
    EditCase{"Ch. last a. 0",        "3",       "0:8 1:9 2:10"},
    EditCase{"Choose Last",          "2,5",     "5:9 6:10"},
    EditCase{"Choose Part",          "3,4,-1",  "-1:4 0:5"},
    EditCase{"Choose Part",          "4,3,-1",  all_rows},
    EditCase{"Choose First",         "4",       "0:1 1:2 2:3 3:4"}), readable_name);
// clang-format on

TEST(Cmd, DelNlastTwiceRemovesTheTwoLastRows) {
  Desk desk;
  desk.fill_rows(0, 3);
  desk.run("Cmd", "Del nlast");
  desk.run("Cmd", "Del nlast");
  EXPECT_EQ(desk.rows(), "0:1 1:2");
}

TEST(Cmd, DelNlastOutsideKeepsWhatIsInsideTheCurrentRangeTable) {
  Desk desk;
  RangeTable& table = desk.document().ranges.table(4);
  table.range[0] = {Lk::at(0, 3, -1), Lk::at(0, 3, 1)};
  table.range[1] = {Lk::at(0, 3, 8), Lk::at(0, 3, 9)};
  desk.document().ranges.choose(4);
  for (const std::int32_t k1 : {-2, 1, 5, 9}) desk.lmap().set(Lk::at(0, 3, k1), cotyp(k1));
  desk.lmap().set(Lk::at(0, 2, 5), cotyp(7));
  desk.run("Cmd", "Del nlast outside S1");
  EXPECT_EQ(desk.rows(), "2:7 3:1 3:9");
}

TEST(Cmd, DeleteAllMakesTheStoreRegular) {
  Desk desk;
  desk.document().inverted = true;
  desk.run("Cmd", "Delete All");
  EXPECT_FALSE(desk.document().inverted);
}

struct DialogCase {
  const char* item;
  const char* caption;
  const char* prompt;
  /// On the rows 2 ... 9.
  const char* preset;
  const char* answer;
  bool needs_nlast;
};

class CmdDialog : public testing::TestWithParam<DialogCase> {};

TEST_P(CmdDialog, AsksInItsOwnWords) {
  Desk desk;
  desk.fill_rows(0, 9);
  const DialogCase& c = GetParam();
  EXPECT_EQ(desk.run_text("Cmd", c.item, {c.answer}), dialog_report(c.caption, c.prompt, c.answer));
  EXPECT_EQ(desk.person.caption().substr(0, 8), "nlast = ");
}

TEST_P(CmdDialog, ChangesNothingWhenItIsCancelled) {
  Desk desk;
  desk.fill_rows(0, 9);
  desk.person.set_caption("as it was");
  const DialogCase& c = GetParam();
  EXPECT_EQ(desk.run_text("Cmd", c.item), dialog_report(c.caption, c.prompt, "cancel"));
  EXPECT_EQ(desk.rows(), all_rows);
  EXPECT_EQ(desk.person.caption(), "as it was");
}

TEST_P(CmdDialog, PresetsWhatChangesLeast) {
  Desk desk;
  desk.fill_rows(2, 9);
  EXPECT_EQ(desk.preset("Cmd", GetParam().item), GetParam().preset);
}

TEST_P(CmdDialog, IsAskedOnAnEmptyStoreUnlessItNeedsTheLastRow) {
  Desk desk;
  const DialogCase& c = GetParam();
  EXPECT_EQ(desk.run_text("Cmd", c.item).empty(), c.needs_nlast);
  EXPECT_TRUE(desk.lmap().empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Cmd, CmdDialog, testing::Values(
    DialogCase{"Move All",              "Move lattice",                              "To move all quantities from n to n+a\nenter integer a", "0",     "0",     false},
    DialogCase{"Move Part",             "Move lattice part",                         "To move quantities with a<=n<=b to c (offset=c-a)\nenter the three integers   a,b,c", "9,9,9", "1,1,1", false},
    DialogCase{"Copy Part",             "Copy lattice part",                         "To copy quantities with a<=n<=b to c (offset=c-a)\nenter the three integers   a,b,c", "9,9,9", "1,1,1", false},
    DialogCase{"Delete Part",           "Delete part of lattice",                    "To delete all quantities with a<=n<=b\nenter the two integers   a,b", "9,9",   "1,1",   false},
    DialogCase{"Delete all but last",   "Delete all but last",                       "To erase all of lattice except\nits last a rows\nenter integer a [0<=a]", "8",     "1",     true},
    DialogCase{"dto outside Sums1",     "Del outside Sums1",                         "To erase all of lattice except its part\nwithin the Ranges of current Sums1 Table\nand except its last a rows\nenter integer a", "8",     "1",     true},
    DialogCase{"Del smallest of nlast", "Partial Deletion of Row nlast=9",           "To continue branching algorithms\nwithout too much memory consumption\nit can be necessary to delete those lattice points of the\nlast row, which have the smallest absolute quantities\n\nTo delete i percent of last row\nwith smallest absolute quantities\nenter integer i [0<=i<=100]", "30",    "0",     true},
    DialogCase{"Ch. last b. 0",         "Choose last part as past in n=0",           "To choose last a rows, move them\nbefore inclusive n=0 and delete rest\nenter integer a", "8",     "2",     true},
    DialogCase{"Ch. last a. 0",         "Choose last part as start in n=0",          "To choose last a rows, move them\nafter inclusive n=0 and delete rest\nenter integer a", "8",     "2",     true},
    DialogCase{"Choose Last",           "Choose last part of lattice",               "Choose last a rows: To move quantities with\nnlast-a < n <= nlast to b and delete rest\nenter the two integers   a,b", "8,2",   "2,3",   true},
    DialogCase{"Choose Part",           "Choose lattice part",                       "Choose: To move quantities with\n a<=n<=b to c and delete rest\nenter the three integers   a,b,c", "2,9,2", "1,2,3", false},
    DialogCase{"Choose First",          "Choose first: Delete last part of lattice", "To delete all quantities with a>=n\nenter integer a", "9",     "5",     false}));
// clang-format on

TEST(Cmd, APresetThatIsConfirmedKeepsEveryPoint) {
  const char* const items[] = {"Move All",          "Move Part",   "Copy Part",   "Delete all but last",
                               "dto outside Sums1", "Choose Last", "Choose Part", "Ch. last b. 0",
                               "Ch. last a. 0"};
  for (const char* item : items) {
    Desk desk;
    desk.fill_rows(0, 0);
    desk.lmap().set(Lk::at(0, 5), cotyp(6));
    const std::string moved = std::string(item) == "Ch. last b. 0" ? "-5:1 0:6" : "0:1 5:6";
    desk.run("Cmd", item, {desk.preset("Cmd", item)});
    EXPECT_EQ(desk.rows(), moved) << item;
  }
}

TEST(Cmd, PresetsOfAnEmptyStoreNameRow0) {
  const std::pair<const char*, const char*> rows[] = {
      {"Move Part", "0,0,0"},   {"Copy Part", "0,0,0"}, {"Delete Part", "0,0"},
      {"Choose Part", "0,0,0"}, {"Choose First", "0"},
  };
  for (const auto& [item, preset] : rows) {
    Desk desk;
    EXPECT_EQ(desk.preset("Cmd", item), preset) << item;
  }
}

TEST(Cmd, MoreRowsThanAnIntegerHoldsArePresetAsTheLargestInteger) {
  Desk desk;
  desk.lmap().set(Lk::at(0, lowest_int), cotyp(1));
  desk.lmap().set(Lk::at(0, highest_int), cotyp(2));
  EXPECT_EQ(desk.preset("Cmd", "Delete all but last"), "2147483647");
  EXPECT_EQ(desk.preset("Cmd", "Choose Last"), "2147483647,-2147483648");
}

TEST(Cmd, CommandsWithoutADialogKeepSilentOnAnEmptyStore) {
  for (const char* item :
       {"Delete All", "Delete all n>0", "Del nlast", "Del nlast outside S1", "dto. for xx percent"}) {
    Desk desk;
    EXPECT_EQ(desk.run_text("Cmd", item), "") << item;
  }
}

TEST(Cmd, DeleteAllButLastRefusesANegativeCount) {
  Desk desk;
  desk.fill_rows(0, 9);
  const auto reports = desk.run("Cmd", "Delete all but last", {"-1"});
  ASSERT_EQ(reports.size(), 2U);
  EXPECT_EQ(reports[1], "refused: -1");
  EXPECT_EQ(desk.rows(), all_rows);
}

void fill_last_row_of_ten(Desk& desk) {
  for (std::int32_t k1 = 0; k1 < 10; ++k1) desk.lmap().set(Lk::at(0, 5, k1), cotyp(10 - k1));
}

TEST(Cmd, DelSmallestTakesThePercentThatIsAskedFor) {
  Desk desk;
  fill_last_row_of_ten(desk);
  desk.run("Cmd", "Del smallest of nlast", {"50"});
  EXPECT_EQ(desk.rows(), "5:10 5:9 5:8 5:7 5:6");
}

TEST(Cmd, QuickDelSmallestTakesTheDefaultPercent) {
  Desk desk;
  fill_last_row_of_ten(desk);
  EXPECT_EQ(desk.caption("Cmd", "dto. for xx percent"), "dto. for 30 percent");
  EXPECT_EQ(desk.run_text("Cmd", "dto. for xx percent"), "");
  EXPECT_EQ(desk.lmap().count(), 7U);
  desk.document().cph.setkmi_1("DelSmallPercent_Default", 100);
  EXPECT_EQ(desk.caption("Cmd", "dto. for xx percent"), "dto. for 100 percent");
  desk.run("Cmd", "dto. for xx percent");
  EXPECT_TRUE(desk.lmap().empty());
}

TEST(Cmd, APercentageThatALineOfAFileWidenedDeletesTheRowAtMost) {
  const std::pair<const char*, std::size_t> rows[] = {{"150 0 200 1", 0}, {"-5 -9 100 1", 10}};
  for (const auto& [line, left] : rows) {
    Desk desk;
    fill_last_row_of_ten(desk);
    Tokens rest(line);
    ASSERT_EQ(desk.document().cph.read_configuration_line("DelSmallPercent_Default", rest, true), "");
    desk.run("Cmd", "dto. for xx percent");
    EXPECT_EQ(desk.lmap().count(), left) << line;
  }
}

}  // namespace
}  // namespace kov
