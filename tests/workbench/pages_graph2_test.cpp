#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "workbench/pages_desk.h"

namespace kov {
namespace {

// What the Graph2 page follows: its tab, commands, parameters, its radio buttons and its grid.

/// Points at n = 0, 1, 2 of k1 = 0 and 1, all inside Range 1.
struct Graph2Desk : PagesDesk {
  Graph2Desk() {
    KeyBox& range = document().ranges.current_table().range[0];
    range = {Lk::filled(lowest_int), Lk::filled(highest_int)};
    for (std::int32_t n = 0; n < 3; ++n) {
      for (std::int32_t k1 = 0; k1 < 2; ++k1) lmap().set(Lk::at(0, n, k1), cotyp(n + k1 + 1));
    }
    cph().setkmi_1("Graph_EntryCountPerDisplay", 6);
  }
  cphclass& cph() { return document().cph; }
  Graph2Page& page() { return pages.graph2(); }
  bool drawn() { return page().drawing() != nullptr; }
  std::string row(int row) {
    std::string text;
    for (int column = 0; column < pages.slg2a().column_count(); ++column) {
      text += (column > 0 ? " " : "") + pages.slg2a().text({column, row});
    }
    return text;
  }
};

const Reports map_calculated = {"caption: lattice point 6 of 6 checked",
                                "caption: lattice point 6 of 6 summed up"};

/// What was calculated, without the lines that were plotted.
Reports calculations(Graph2Desk& desk) {
  Reports reports = desk.take_reports();
  std::erase_if(reports,
                [](const std::string& report) { return report.starts_with("caption: Plotting line"); });
  return reports;
}

TEST(Graph2Pages, ChoosingTheTabCalculatesOnce) {
  Graph2Desk desk;
  desk.pages.show(Page::graph2);
  EXPECT_EQ(calculations(desk), map_calculated);
  EXPECT_TRUE(desk.drawn());
  EXPECT_EQ(desk.page().drawing()->map.point_count, 6);
}

TEST(Graph2Pages, BothGraphsFollowTheNameOfTheFile) {
  Graph2Desk desk;
  for (const auto& [page, file] : {std::pair(Page::graph1, "one.aa1"), std::pair(Page::graph2, "two.aa1")}) {
    desk.show(page);
    int changes = 0;
    const auto count = [&changes] { ++changes; };
    page == Page::graph1 ? desk.pages.graph1().set_changed(count) : desk.page().set_changed(count);
    desk.run("File", "Save as", {file});
    EXPECT_EQ(changes, 1) << "the picture is another one";
    const std::string name = page == Page::graph1 ? desk.pages.graph1().title().substr(0, 7)
                                                  : desk.page().drawing()->origin.file_name;
    EXPECT_EQ(name, file);
    desk.pages.graph1().set_changed({});
    desk.page().set_changed({});
  }
  for (const std::string& report : desk.take_reports()) {
    EXPECT_EQ(report.find("lattice point"), std::string::npos) << "nothing is calculated for it: " << report;
  }
}

TEST(Graph2Pages, AnyOtherPageForgetsTheMap) {
  Graph2Desk desk;
  desk.show(Page::graph2);
  desk.show(Page::lattices);
  EXPECT_FALSE(desk.drawn());
  EXPECT_TRUE(desk.take_reports().empty());
}

TEST(Graph2Pages, TheTabSetsTheRadioButtonACommandDoesNot) {
  Graph2Desk desk;
  desk.cph().setkmi_1("Graph2_RB_state_saving", 0);
  desk.show(Page::graph2);
  desk.pages.choose_graph2_radio(4);
  EXPECT_EQ(desk.workbench.graph2_radio_index, 4);
  desk.run("Cmd", "Del nlast");
  EXPECT_EQ(desk.workbench.graph2_radio_index, 4);
  EXPECT_EQ(desk.page().drawing()->map.point_count, 4) << "the page follows the store";
  desk.pages.show(Page::graph2);
  EXPECT_EQ(desk.workbench.graph2_radio_index, 0);
}

TEST(Graph2Pages, ARadioButtonIsSeenOnTheConfigPage) {
  Graph2Desk desk;
  desk.show(Page::config);
  const auto value = [&] {
    for (int row = 1; row < desk.pages.config().row_count(); ++row) {
      if (desk.text("Slconfig", {2, row}) == "Graph2_RB_re_im_qa_qq_cntAt_12")
        return desk.text("Slconfig", {4, row});
    }
    return std::string("no such row");
  };
  EXPECT_EQ(value(), "0");
  desk.pages.choose_graph2_radio(7);
  EXPECT_EQ(value(), "7");
  EXPECT_FALSE(desk.drawn());
}

TEST(Graph2Pages, ParametersOfGraphsCalculateAnewOthersDoNot) {
  for (const char* keyword : {"Graph2_color_mode", "Graph_num_precision", "Graph2a_max_dypix_percent",
                              "Sums1_DefaultTableIndex", "Graph2_RB_re_im_qa_qq_cntAt_12"}) {
    Graph2Desk desk;
    desk.document().ranges.table(1) = desk.document().ranges.table(0);
    desk.show(Page::graph2);
    desk.cph().setkmi_1(keyword, 1);
    desk.workbench.apply_parameter(keyword, desk.person);
    EXPECT_EQ(calculations(desk), map_calculated) << keyword;
  }
  Graph2Desk desk;
  desk.show(Page::graph2);
  for (const char* keyword : {"Graph1_divmode", "Sums_lt_precision", "Slq_ColCount"}) {
    desk.workbench.apply_parameter(keyword, desk.person);
    EXPECT_TRUE(calculations(desk).empty()) << keyword;
  }
}

TEST(Graph2Pages, AParameterOfAPageThatIsNotShownWaits) {
  Graph2Desk desk;
  desk.show(Page::lattices);
  desk.workbench.apply_parameter("Graph2_color_mode", desk.person);
  EXPECT_TRUE(desk.take_reports().empty());
}

TEST(Graph2Pages, AnotherRangeTableCalculatesAnew) {
  Graph2Desk desk;
  desk.show(Page::graph2);
  desk.run("Sums1", "Change Table Number", {"1"});
  EXPECT_EQ(desk.page().drawing()->map.point_count, 2) << "the default table has n = 0 alone";
  desk.run("Bar", "S1", {"0"});
  EXPECT_EQ(desk.page().drawing()->map.point_count, 6);
}

TEST(Graph2Pages, ItsLabelSaysWhyNothingIsDrawn) {
  Graph2Desk desk;
  desk.show(Page::graph2);
  EXPECT_EQ(desk.pages.label(Page::graph2), "");
  desk.run("Cmd", "Delete All");
  EXPECT_EQ(desk.pages.label(Page::graph2), " no different x");
}

TEST(Graph2Pages, TheButtonSetsNyAndTheStatesAndDraws) {
  Graph2Desk desk;
  EXPECT_EQ(desk.caption("Graph2", "Button_g2a_ny"), "set ny:0");
  desk.show(Page::graph2);
  desk.document().curve_states.fill(1);
  desk.run("Graph2", "Button_g2a_ny", {"3"});
  EXPECT_EQ(desk.caption("Graph2", "Button_g2a_ny"), "set ny:3");
  EXPECT_EQ(desk.row(0), "curve 1 2 3");
  EXPECT_EQ(desk.row(1), "y 2 1 0");
  EXPECT_EQ(desk.row(2), "plot blue - red");
  EXPECT_TRUE(desk.page().drawing()->stack);
  desk.document().curve_states[1] = 2;
  desk.run("Graph2", "Button_g2a_ny", {"3"});
  EXPECT_EQ(desk.row(2), "plot blue red red") << "the same ny changes nothing";
  desk.run("Graph2", "Button_g2a_ny", {"-2"});
  EXPECT_EQ(desk.row(1), "y 0 1");
  EXPECT_EQ(desk.row(2), "plot blue red") << "a negative ny sets curve 1 alone";
  desk.run("Graph2", "Button_g2a_ny", {"0"});
  EXPECT_TRUE(desk.page().drawing()->raster);
}

TEST(Graph2Pages, NySetAsAParameterResetsTheStatesToo) {
  Graph2Desk desk;
  desk.cph().setkmi_1("Graph2a_ny", 4);
  desk.workbench.apply_parameter("Graph2a_ny", desk.person);
  EXPECT_EQ(desk.row(2), "plot blue - - red");
}

TEST(Graph2Pages, TheGridDrawsTheCurvesAnewWithoutACalculation) {
  Graph2Desk desk;
  desk.run("Graph2", "Button_g2a_ny", {"3"});
  desk.show(Page::graph2);
  desk.pages.enter("Slg2a").click(GridClick::double_click, {2, 1});
  EXPECT_TRUE(desk.take_reports().empty());
  EXPECT_EQ(desk.page().drawing()->stack->curves[1].state, curve_red);
  EXPECT_EQ(desk.row(2), "plot blue red red");
}

TEST(Graph2Pages, TheGridShowsItsPage) {
  Graph2Desk desk;
  desk.show(Page::lattices);
  desk.pages.enter("Slg2a");
  EXPECT_TRUE(desk.active(Page::graph2));
  EXPECT_TRUE(desk.drawn());
}

}  // namespace
}  // namespace kov
