#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "text/integers.h"
#include "workbench/pages_desk.h"

namespace kov {
namespace {

// What the pages of the tables and of the parameters follow: commands, keys and edits.

TEST(AlgaddPage, EveryCommandOfTheTableMenuFillsTheGridAndHidesTheMenu) {
  PagesDesk desk;
  desk.set_halving_entry(0);
  desk.show(Page::algadd);
  for (const auto& [item, answers] :
       std::initializer_list<std::pair<const char*, std::vector<std::string>>>{{"MultiplyAll_p", {"2"}},
                                                                               {"Mult_all_pabsnot1", {"2"}},
                                                                               {"MultiplySelected_p", {"2"}},
                                                                               {"SetSelected_p", {"2"}},
                                                                               {"Select_p", {"0,1"}},
                                                                               {"CopyEntry", {"5"}},
                                                                               {"EraseEntry", {}},
                                                                               {"RemoveEntry", {}},
                                                                               {"RemoveTable", {}},
                                                                               {"InsertTable", {}},
                                                                               {"InsertEntry", {}},
                                                                               {"RenumberEntries", {}},
                                                                               {"RenumberTables", {}},
                                                                               {"CopyTable", {"4"}},
                                                                               {"ChooseNr", {"5"}},
                                                                               {"EraseTable", {}},
                                                                               {"Close", {}}}) {
    desk.pages.algadd().click(GridClick::right, {1, 1});
    ASSERT_TRUE(desk.workbench.algadd_menu_open);
    desk.pages.algadd().edit("9");
    desk.run("Algadd", item, answers);
    EXPECT_FALSE(desk.workbench.algadd_menu_open) << item;
    EXPECT_FALSE(desk.pages.algadd().edited()) << item;
  }
  EXPECT_EQ(desk.text("SlAlgadd", {0, 0}), "5=aanr");
}

TEST(AlgaddPage, ACancelledCommandOfTheTableMenuHidesItToo) {
  PagesDesk desk;
  desk.pages.algadd().click(GridClick::right, {1, 1});
  desk.run("Algadd", "CopyTable");
  EXPECT_FALSE(desk.workbench.algadd_menu_open);
}

TEST(AlgaddPage, AnotherTableFromTheMenuBarFillsTheGrid) {
  PagesDesk desk;
  for (const auto& [menu, item] : {std::pair{"Bar", "AA"}, std::pair{"Alg", "Change Algadd Nr"}}) {
    desk.pages.algadd().click(GridClick::right, {1, 1});
    desk.run(menu, item);
    EXPECT_TRUE(desk.workbench.algadd_menu_open) << "cancelled";
    desk.run(menu, item, {"7"});
    EXPECT_FALSE(desk.workbench.algadd_menu_open);
    EXPECT_EQ(desk.text("SlAlgadd", {0, 0}), "7=aanr");
  }
}

TEST(AlgaddPage, TheSelectedColumnIsTheCurrentEntry) {
  PagesDesk desk;
  EXPECT_EQ(desk.workbench.current_entry, 0);
  desk.pages.algadd().select({4, 1});
  EXPECT_EQ(desk.workbench.current_entry, 3);
  desk.pages.algadd().press(GridKey::of('P'));
  EXPECT_FALSE(desk.algadd().entry(0, 3).empty());
  desk.run("Algadd", "EraseEntry");
  EXPECT_TRUE(desk.algadd().entry(0, 3).empty());
}

TEST(AlgaddPage, ARunThatChangesTheTableShowsIt) {
  PagesDesk desk;
  desk.set_halving_entry(0);
  desk.fill_rows(0, 0);
  desk.show(Page::algadd);
  desk.pages.algadd().edit("9");
  bool redisplayed = false;
  desk.pages.algadd().set_changed([&] { redisplayed = true; });
  desk.run("Alg", "Start Algadd", {"1"});
  EXPECT_TRUE(redisplayed);
}

TEST(Sums1Page, TheButtonsOfTheMenuRewriteTheTableAndDoNotSumUp) {
  PagesDesk desk;
  desk.fill_rows(0, 9);
  desk.show(Page::sums1);
  desk.workbench.sums1.open_menu();
  for (const auto& [item, bound] :
       {std::pair{"Set full Range (-...+)", "-"}, std::pair{"Copy Max to Min", "+"},
        std::pair{"Set Min to 0", "0"}, std::pair{"Set Table to Default", "-"},
        std::pair{"Copy Lattice Offset to Min", "0"}, std::pair{"Copy Min to Max", "0"},
        std::pair{"Set Max to 0", "0"}, std::pair{"Copy Lattice Offset to Max", "0"},
        std::pair{"Exchange Ranges", "0"}}) {
    bool redisplayed = false;
    desk.pages.slds1().set_changed([&] { redisplayed = true; });
    desk.pages.slds1().edit("9");
    EXPECT_TRUE(desk.run("Sums1", item).empty()) << item;
    EXPECT_TRUE(redisplayed) << item;
    EXPECT_FALSE(desk.pages.slds1().edited()) << item;
    EXPECT_EQ(desk.text("Slds1", {1, 3}), bound) << item;
  }
  EXPECT_TRUE(desk.workbench.sums1.menu_open());
  EXPECT_EQ(desk.run("Sums1", "Close"), summed_10_of_10);
  EXPECT_FALSE(desk.workbench.sums1.menu_open());
}

TEST(Sums1Page, AnotherTableByNumberOpensTheMenuAndDoesNotSumUp) {
  PagesDesk desk;
  desk.fill_rows(0, 9);
  desk.show(Page::sums1);
  for (const auto& [menu, item] : {std::pair{"Bar", "S1"}, std::pair{"Sums1", "Change Table Number"}}) {
    desk.pages.slds1().press({GridKey::Name::enter});
    ASSERT_FALSE(desk.workbench.sums1.menu_open());
    EXPECT_EQ(desk.run(menu, item, {"6"}).size(), 1U) << "the dialog alone";
    EXPECT_TRUE(desk.workbench.sums1.menu_open());
    EXPECT_EQ(desk.text("Slds1", {0, 0}), "6: R->");
  }
  EXPECT_EQ(desk.run("Sums1", "Copy Table", {"8"}).size(), 1U);
  EXPECT_EQ(desk.text("Slds1", {0, 0}), "8: R->");
}

TEST(Sums1Page, KeysTurnToOtherTablesAndSumUpAtOnce) {
  PagesDesk desk;
  desk.fill_rows(0, 9);
  desk.document().cph.setkmi_1("Sums1_SumUp_at_once", 1);
  desk.show(Page::sums1);
  desk.pages.slds1().press(GridKey::of('q'));
  EXPECT_EQ(desk.take_reports(), summed_10_of_10);
  EXPECT_EQ(desk.text("Slds1", {0, 0}), "31: R->");
  EXPECT_EQ(desk.caption("Bar", "S1"), "S1:31");
  bool redisplayed = false;
  desk.pages.slsums1().set_changed([&] { redisplayed = true; });
  desk.pages.slds1().press(GridKey::of('w'));
  EXPECT_TRUE(redisplayed) << "the results change with the page";
}

TEST(Parameters, ThatAreEditedOnTheConfigPageActAtOnce) {
  PagesDesk desk;
  desk.show(Page::config);
  const auto edit = [&](const std::string& keyword, const std::string& value) {
    ConfigGrid& config = desk.pages.config();
    int row = 1;
    while (config.text({2, row}) != keyword) ++row;
    desk.type("Slconfig", {4, row}, value);
    config.press({GridKey::Name::enter});
    return config.text({4, row});
  };
  EXPECT_EQ(edit("Algadd_DefaultTableIndex", "12"), "12");
  EXPECT_EQ(desk.text("SlAlgadd", {0, 0}), "12=aanr");
  EXPECT_EQ(desk.caption("Bar", "AA"), "AA:12");
  EXPECT_EQ(edit("Sums1_DefaultTableIndex", "5"), "5");
  EXPECT_EQ(desk.text("Slds1", {0, 0}), "5: R->");
  EXPECT_EQ(edit("Graph1_CB1qq_checked", "1"), "1");
  EXPECT_TRUE(desk.workbench.graph1_checked[7]);
  EXPECT_EQ(edit("Slq_RowCount", "9"), "9");
  desk.pages.show(Page::lattices);
  EXPECT_EQ(desk.pages.slq().row_count(), 9);
}

void set(PagesDesk& desk, const std::string& keyword, std::int32_t value) {
  ASSERT_TRUE(desk.document().cph.setkmi_1(keyword, value));
  desk.workbench.apply_parameter(keyword, desk.person);
}

TEST(Parameters, RedisplayThePageThatIsMadeOfThem) {
  PagesDesk desk;
  desk.fill_rows(0, 9);
  set(desk, "Slq_ColCount", 8);
  EXPECT_EQ(desk.pages.slq().column_count(), 8);
  desk.pages.algadd().click(GridClick::right, {1, 1});
  set(desk, "Algadd_DefaultTableIndex", 3);
  EXPECT_FALSE(desk.workbench.algadd_menu_open) << "the grid is filled anew";
  desk.show(Page::sums1);
  for (const char* keyword : {"Sums_ShowAsFloat", "Sums1_SumUp_at_once"}) {
    set(desk, keyword, 1);
    EXPECT_EQ(desk.take_reports(), summed_10_of_10) << keyword;
  }
  set(desk, "Sums2_n_first", 1);
  set(desk, "Slq_ColCount", 9);
  set(desk, "Algadd_DefaultTableIndex", 4);
  EXPECT_TRUE(desk.take_reports().empty()) << "parameters of other pages";
  desk.show(Page::sums2);
  for (const char* keyword : {"Sums_lt_precision", "Sums2_n_first"}) {
    set(desk, keyword, 4);
    EXPECT_EQ(desk.take_reports(), summed_10_of_10) << keyword;
  }
  EXPECT_EQ(desk.text("Slsums2", {0, 6}), "n=4: cnt");
  set(desk, "Sums1_SumUp_at_once", 0);
  EXPECT_TRUE(desk.take_reports().empty());
}

TEST(Parameters, AnotherRangeTableSumsUpOrOpensTheMenuAsItsKeysDo) {
  PagesDesk desk;
  desk.fill_rows(0, 9);
  desk.show(Page::sums1);
  set(desk, "Sums1_SumUp_at_once", 1);
  desk.take_reports();
  set(desk, "Sums1_DefaultTableIndex", 3);
  EXPECT_EQ(desk.take_reports(), summed_10_of_10);
  EXPECT_EQ(desk.text("Slds1", {0, 0}), "3: R->");
  set(desk, "Sums1_SumUp_at_once", 0);
  desk.take_reports();
  set(desk, "Sums1_DefaultTableIndex", 4);
  EXPECT_TRUE(desk.take_reports().empty());
  EXPECT_TRUE(desk.workbench.sums1.menu_open());
}

TEST(Parameters, ThatCommandsSetShowOnTheConfigPage) {
  PagesDesk desk;
  desk.show(Page::config);
  const auto value = [&](const std::string& keyword) {
    int row = 1;
    while (desk.text("Slconfig", {2, row}) != keyword) ++row;
    return desk.text("Slconfig", {4, row});
  };
  desk.run("Bar", "S1", {"9"});
  EXPECT_EQ(value("Sums1_DefaultTableIndex"), "9");
  set(desk, "Slq_ColCount", 33);
  EXPECT_EQ(value("Slq_ColCount"), "33");
}

std::string file_of_10_points(const std::string& configuration) {
  std::string text = configuration;
  std::string zeros;
  for (int i = 0; i < 30; ++i) zeros += " 0";
  for (int n = 0; n < 10; ++n) text += "e_l 0 " + int_text(n) + zeros + " 1\r\n";
  return text;
}

TEST(Files, ThatAreReadShowTheirInitialPageOnce) {
  PagesDesk desk;
  write_text("x.aa1", file_of_10_points("F1_Initial_Active_Page 4 0 8 0\r\nSums_EntryCountPerDisplay 10 1 "
                                        "1000000 0\r\nAlgadd_DefaultTableIndex 6 0 15 0\r\n"));
  desk.pages.algadd().click(GridClick::right, {1, 1});
  desk.type("Slq", {1, 1}, "7");
  const Reports reports = desk.run("File", "Open", {"x.aa1"});
  EXPECT_EQ(std::count(reports.begin(), reports.end(), summed_10_of_10.front()), 1);
  EXPECT_TRUE(desk.active(Page::sums1));
  EXPECT_EQ(desk.text("Slsums1", {3, 1}), "10");
  EXPECT_EQ(desk.text("SlAlgadd", {0, 0}), "6=aanr");
  EXPECT_FALSE(desk.workbench.algadd_menu_open);
  EXPECT_EQ(desk.person.caption(), "nlast = 9 (1.760 KB = 10e)");
  desk.pages.leave_grids();
  EXPECT_EQ(desk.lmap().count(), 10U) << "what was being typed does not enter the new file's lattices";
}

TEST(Files, SavingComputesNothing) {
  PagesDesk desk;
  desk.fill_rows(0, 9);
  desk.show(Page::sums1);
  const Reports reports = desk.run("File", "Save as", {"x.aa1"});
  EXPECT_EQ(std::count(reports.begin(), reports.end(), summed_10_of_10.front()), 0);
  EXPECT_EQ(desk.person.caption(), "nlast = 9 (1.760 KB = 10e)");
}

TEST(Files, ThatCannotBeOpenedChangeNoPage) {
  PagesDesk desk;
  desk.fill_rows(0, 9);
  desk.show(Page::sums1);
  const Reports reports = desk.run("File", "Open", {"nothing.aa1"});
  EXPECT_EQ(std::count(reports.begin(), reports.end(), summed_10_of_10.front()), 0);
  EXPECT_TRUE(desk.active(Page::sums1));
}

TEST(Files, ResetCfgRedisplays) {
  PagesDesk desk;
  set(desk, "Slq_ColCount", 8);
  desk.run("File", "Reset Cfg", {"yes"});
  EXPECT_EQ(desk.pages.slq().column_count(), 20);
}

}  // namespace
}  // namespace kov
