#include <gtest/gtest.h>

#include "workbench/check_boxes.h"
#include "workbench/pages_desk.h"

namespace kov {
namespace {

// What the Graph1 page follows: its tab, commands, parameters, its check boxes and its label.

/// Points at k1 = 0 and 1 in Range 1, one at k1 = 7 in Range 2.
struct Graph1Desk : PagesDesk {
  Graph1Desk() {
    table().range[1] = table().range[0];
    table().range[1].min.coo[l_position] = 1;
    table().range[1].max.coo[l_position] = 1;
    lmap().set(Lk::at(0, 0, 0), 1);
    lmap().set(Lk::at(0, 0, 1), cotyp(2, 1, 3, 1));
    lmap().set(Lk::at(1, 0, 7), 4);
    cph().setkmi_1("Graph_EntryCountPerDisplay", 3);
  }
  cphclass& cph() { return document().cph; }
  RangeTable& table() { return document().ranges.current_table(); }
  Graph1Page& page() { return pages.graph1(); }
  void set(const char* keyword, std::int32_t value) {
    ASSERT_TRUE(cph().setkmi_1(keyword, value));
    workbench.apply_parameter(keyword, person);
  }
};

const Reports calculated = {"caption: lattice point 3 of 3 checked",
                            "caption: lattice point 3 of 3 summed up"};

TEST(Graph1Pages, ChoosingTheTabCalculatesOnce) {
  Graph1Desk desk;
  EXPECT_EQ(desk.pages.label(Page::graph1), "");
  desk.pages.show(Page::graph1);
  EXPECT_EQ(desk.take_reports(), calculated);
  EXPECT_TRUE(desk.page().drawn());
  EXPECT_EQ(desk.page().par().range[0].count, 2);
  EXPECT_EQ(desk.pages.label(Page::graph1), " Click on checkboxes to draw Sums1 along x");
}

TEST(Graph1Pages, FollowsTheStoreWhileItIsShown) {
  Graph1Desk desk;
  desk.show(Page::graph1);
  desk.run("Cmd", "Delete All");
  EXPECT_FALSE(desk.page().drawn());
  EXPECT_EQ(desk.pages.label(Page::graph1), "");
  desk.run("Mod", "Init n=0 with 1");
  EXPECT_EQ(desk.page().par().range[0].count, 1);
  desk.show(Page::lattices);
  desk.run("Mod", "Init n=0 with 1_1");
  EXPECT_EQ(desk.page().par().range[0].count, 1) << "any other page waits until it is shown";
}

TEST(Graph1Pages, FollowsTheRangesWhileItIsShown) {
  Graph1Desk desk;
  desk.show(Page::graph1);
  desk.run("Sums1", "Exchange Ranges");
  EXPECT_EQ(desk.reports, calculated);
  EXPECT_EQ(desk.page().par().range[0].count, 1);
  desk.run("Sums1", "Change Table Number", {"3"});
  EXPECT_EQ(desk.page().par().range[0].count, 2);
  desk.show(Page::lattices);
  EXPECT_TRUE(desk.run("Sums1", "Exchange Ranges").empty());
}

TEST(Graph1Pages, FollowsItsParametersWhileItIsShown) {
  Graph1Desk desk;
  for (const char* keyword : {"Graph_num_precision", "Graph1_divmode", "Sums1_DefaultTableIndex"}) {
    desk.show(Page::graph1);
    desk.set(keyword, 2);
    EXPECT_EQ(desk.take_reports(), calculated) << keyword;
    desk.show(Page::lattices);
    desk.set(keyword, 1);
    EXPECT_TRUE(desk.take_reports().empty()) << keyword;
  }
  desk.show(Page::graph1);
  desk.set("Graph2_color_mode", 2);
  EXPECT_TRUE(desk.take_reports().empty());
  desk.set("Graph1_CB0qre_checked", 0);
  EXPECT_EQ(desk.pages.label(Page::graph1), " cnt=0");
}

TEST(Graph1Pages, ACheckBoxRecalculatesThePageThatIsShown) {
  Graph1Desk desk;
  desk.show(Page::graph1);
  EXPECT_TRUE(set_check_box(desk.workbench, "CB1qre", true));
  EXPECT_EQ(desk.take_reports(), calculated);
  EXPECT_EQ(desk.page().par().xmax, 8);
  desk.set("Graph1_quick_xscale_r12_common", 1);
  desk.take_reports();
  EXPECT_TRUE(set_check_box(desk.workbench, "CB0qim", true));
  EXPECT_TRUE(desk.take_reports().empty()) << "with the common scale it only draws";
  EXPECT_EQ(desk.page().table().heading,
            (std::vector<std::string>{"k1", "SR1: qre", "SR1: qim", "SR2: qre"}));
  desk.show(Page::config);
  EXPECT_TRUE(set_check_box(desk.workbench, "CB0qim", false));
  EXPECT_TRUE(desk.take_reports().empty());
}

TEST(Graph1Pages, TheOplotLabelTogglesStoresAndDraws) {
  Graph1Desk desk;
  desk.show(Page::graph1);
  EXPECT_EQ(desk.caption("Graph1", "Label_g1_oplot"), "oplot: off");
  EXPECT_EQ(desk.run("Graph1", "Label_g1_oplot"),
            (Reports{"beep", "message: oplot: not 2 but 1 valid curves"}));
  EXPECT_EQ(desk.caption("Graph1", "Label_g1_oplot"), "oplot: on");
  EXPECT_TRUE(desk.workbench.graph1_overlay);
  EXPECT_EQ(desk.cph().kmi("Graph1_oplot_if_2_curves"), 1);
  set_check_box(desk.workbench, "CB0qim", true);
  EXPECT_EQ(desk.take_reports().size(), 4U) << "two curves: calculated, no message";
  EXPECT_TRUE(desk.run("Graph1", "Label_g1_oplot").empty());
  EXPECT_FALSE(desk.workbench.graph1_overlay);
  EXPECT_EQ(desk.cph().kmi("Graph1_oplot_if_2_curves"), 0);
  desk.show(Page::lattices);
  set_check_box(desk.workbench, "CB0qim", false);
  EXPECT_TRUE(desk.run("Graph1", "Label_g1_oplot").empty()) << "nothing is drawn on another page";
  EXPECT_TRUE(desk.workbench.graph1_overlay);
}

TEST(Graph1Pages, TheConfigPageShowsWhatAClickStores) {
  Graph1Desk desk;
  desk.show(Page::config);
  int redisplays = 0;
  desk.pages.config().set_changed([&] { ++redisplays; });
  set_check_box(desk.workbench, "CB0qim", true);
  EXPECT_EQ(redisplays, 1);
  desk.run("Graph1", "Label_g1_oplot");
  EXPECT_EQ(redisplays, 2);
}

TEST(Graph1Pages, TheTitleHasTheFilesName) {
  Graph1Desk desk;
  desk.show(Page::graph1);
  EXPECT_EQ(desk.page().title(), "range table 0, SR1: l=0 n=0 k1=-...+");
  desk.run("File", "Save as", {"walk.aa1"});
  desk.run("File", "Open", {"walk.aa1"});
  desk.show(Page::graph1);
  EXPECT_EQ(desk.page().title(), "walk.aa1, range table 0, SR1: l=0 n=0 k1=-...+");
}

}  // namespace
}  // namespace kov
