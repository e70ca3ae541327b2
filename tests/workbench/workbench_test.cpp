#include "workbench/workbench.h"

#include <gtest/gtest.h>

#include <string>

#include "text/tokens.h"
#include "workbench/desk.h"

namespace kov {
namespace {

/// Sets a value as a hand-edited line of a data file can: beyond the catalogue's bounds.
void read_widened(Document& document, const std::string& keyword, const std::string& value) {
  const std::string line = value + " -1000 1000 0";
  Tokens rest(line);
  ASSERT_EQ(document.cph.read_configuration_line(keyword, rest, true), "");
}

TEST(Workbench, StartsWithTheDefaults) {
  Desk desk;
  const Workbench& workbench = desk.workbench;
  EXPECT_EQ(workbench.document.cph.kmi("Slq_ColCount"), 20);
  EXPECT_EQ(workbench.document.cph.kmi("F1_Screen_Default_Width"), 1000);
  EXPECT_EQ(workbench.document.cph.kmi("F1_Screen_Default_Height"), 700);
  EXPECT_TRUE(workbench.document.lmap.empty());
  EXPECT_EQ(workbench.document.algadd.aanr(), 0);
  EXPECT_EQ(workbench.document.ranges.current_index(), 0);
  EXPECT_EQ(workbench.active_page, 0);
  EXPECT_EQ(workbench.file.path, "a.aa1");
  EXPECT_FALSE(workbench.file.chosen);
  EXPECT_TRUE(workbench.graph1_checked[0]);
  EXPECT_FALSE(workbench.graph1_checked[1]);
  EXPECT_EQ(desk.person.wl(), 2);
  EXPECT_TRUE(desk.reports.empty());
}

TEST(Workbench, AppliesEveryParameter) {
  Desk desk;
  cphclass& cph = desk.document().cph;
  cph.setkmi_1("Algadd_DefaultTableIndex", 15);
  cph.setkmi_1("Sums1_DefaultTableIndex", 31);
  cph.setkmi_1("Graph1_oplot_if_2_curves", 1);
  cph.setkmi_1("Graph1_CB1cntAt_checked", 1);
  cph.setkmi_1("Graph2_RB_re_im_qa_qq_cntAt_12", 9);
  desk.workbench.apply_parameters(desk.person);
  EXPECT_EQ(desk.algadd().aanr(), 15);
  EXPECT_EQ(desk.document().ranges.current_index(), 31);
  EXPECT_TRUE(desk.workbench.graph1_overlay);
  EXPECT_TRUE(desk.workbench.graph1_checked[9]);
  EXPECT_EQ(desk.workbench.graph2_radio_index, 9);
  EXPECT_TRUE(desk.reports.empty());
}

TEST(Workbench, AppliesOneParameterAndLeavesWhatWasChosenByOtherMeans) {
  Desk desk;
  desk.algadd().set_aanr(7);
  desk.document().cph.setkmi_1("Sums1_DefaultTableIndex", 5);
  desk.workbench.apply_parameter("Sums1_DefaultTableIndex", desk.person);
  EXPECT_EQ(desk.document().ranges.current_index(), 5);
  EXPECT_EQ(desk.algadd().aanr(), 7);
  desk.document().cph.setkmi_1("Graph1_CB0qim_checked", 1);
  desk.workbench.apply_parameter("Graph1_CB0qim_checked", desk.person);
  EXPECT_TRUE(desk.workbench.graph1_checked[1]);
  desk.workbench.apply_parameter("Slq_ColCount", desk.person);
  EXPECT_EQ(desk.algadd().aanr(), 7);
}

struct IndexCase {
  const char* keyword;
  const char* value;
};

class InvalidIndex : public testing::TestWithParam<IndexCase> {};

TEST_P(InvalidIndex, IsReportedAndTheOldOneStays) {
  Desk desk;
  desk.algadd().set_aanr(3);
  desk.document().ranges.choose(4);
  desk.workbench.graph2_radio_index = 5;
  desk.workbench.active_page = 6;
  const IndexCase& c = GetParam();
  read_widened(desk.document(), c.keyword, c.value);
  desk.workbench.apply_parameter(c.keyword, desk.person);
  if (std::string(c.keyword) == "F1_Initial_Active_Page") desk.workbench.choose_initial_page(desk.person);
  EXPECT_EQ(desk.reports, (std::vector<std::string>{
                              "beep", std::string("error: InitPrgPar: Invalid default index: \n  kmi(\"") +
                                          c.keyword + "\")=" + c.value}));
  EXPECT_EQ(desk.algadd().aanr(), 3);
  EXPECT_EQ(desk.document().ranges.current_index(), 4);
  EXPECT_EQ(desk.workbench.graph2_radio_index, 5);
  EXPECT_EQ(desk.workbench.active_page, 6);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Workbench, InvalidIndex, testing::Values(
    IndexCase{"Graph2_RB_re_im_qa_qq_cntAt_12", "10"}, IndexCase{"Graph2_RB_re_im_qa_qq_cntAt_12", "-1"},
    IndexCase{"Algadd_DefaultTableIndex", "16"},       IndexCase{"Algadd_DefaultTableIndex", "-1"},
    IndexCase{"Sums1_DefaultTableIndex", "32"},        IndexCase{"Sums1_DefaultTableIndex", "-1"},
    IndexCase{"F1_Initial_Active_Page", "9"},          IndexCase{"F1_Initial_Active_Page", "-1"}));
// clang-format on

TEST(Workbench, TakesAnyValueOfASwitchButZeroAsOn) {
  struct Case {
    const char* value;
    bool on;
  };
  for (const Case& c : {Case{"1", true}, Case{"0", false}, Case{"-1", true}, Case{"2", true}}) {
    Desk desk;
    read_widened(desk.document(), "Graph1_oplot_if_2_curves", c.value);
    desk.workbench.apply_parameter("Graph1_oplot_if_2_curves", desk.person);
    EXPECT_EQ(desk.workbench.graph1_overlay, c.on) << c.value;
    EXPECT_TRUE(desk.reports.empty()) << c.value;
  }
}

TEST(Workbench, ShowsTheInitialPage) {
  Desk desk;
  desk.document().cph.setkmi_1("F1_Initial_Active_Page", 8);
  desk.workbench.choose_initial_page(desk.person);
  EXPECT_EQ(desk.workbench.active_page, static_cast<int>(Page::config));
}

TEST(Workbench, StatusLineBecomesTheCaption) {
  Desk desk;
  desk.workbench.show_status(desk.person);
  EXPECT_EQ(desk.person.caption(), " Lattices are empty. ");
  desk.fill_rows(2, 4);
  desk.workbench.show_status(desk.person);
  EXPECT_EQ(desk.person.caption(), "nlast = 4 (0.528 KB = 3e)");
}

}  // namespace
}  // namespace kov
