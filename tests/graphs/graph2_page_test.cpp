#include "graphs/graph2_page.h"

#include <gtest/gtest.h>

#include "graphs/map_desk.h"
#include "graphs/map_raster.h"
#include "support/failing_allocation.h"

namespace kov {
namespace {

class Graph2PageTest : public testing::Test, protected MapDesk {
 protected:
  Graph2PageTest() {
    point(0, 0, cotyp(1, 1, 7, 1));
    point(1, 2, cotyp(5));
    lmap.set(Lk::at(2, 0, 1), cotyp(4));
    page.set_image({80, 60});
    page.set_changed([this] { ++changes; });
  }
  std::string pixels() { return page.drawing() == nullptr ? "none" : pixels_text(page.drawing()->map); }
  bool drawn() { return page.drawing() != nullptr; }

  int changes = 0;
};

constexpr const char* keyword = "Graph2_RB_re_im_qa_qq_cntAt_12";

TEST_F(Graph2PageTest, IsCalculatedWhenItIsShown) {
  EXPECT_EQ(pixels(), "none");
  page.shown();
  EXPECT_EQ(pixels(), "20,20:1 40,20:4 60,40:5");
  EXPECT_EQ(page.label(), "");
  EXPECT_EQ(changes, 1);
  ASSERT_TRUE(page.drawing()->raster);
  EXPECT_EQ(page.drawing()->raster->width, 80);
  EXPECT_FALSE(page.drawing()->stack);
}

TEST_F(Graph2PageTest, ShowingItSetsTheRadioButtonToItsDefault) {
  radio_index = 3;
  set(keyword, 1);
  page.shown();
  EXPECT_EQ(radio_index, 1);
  EXPECT_EQ(pixels(), "20,20:7 40,20:0 60,40:0");
  EXPECT_EQ(changes, 1) << "drawn once";
}

TEST_F(Graph2PageTest, AnInvalidDefaultIsReportedAndTheButtonStays) {
  radio_index = 4;
  for (const char* index : {"10", "-1"}) {
    force(keyword, index);
    page.shown();
    EXPECT_EQ(take_reports(),
              (Reports{"beep", "error: Graph2_deviating_RB_state: Invalid default index: \n  kmi(\"" +
                                   std::string(keyword) + "\")=" + index}));
    EXPECT_EQ(pixels(), "20,20:1 40,20:1 60,40:1");
  }
}

TEST_F(Graph2PageTest, ARadioButtonDrawsAnewAndSavesItself) {
  page.shown();
  page.radio(1);
  EXPECT_EQ(pixels(), "20,20:7 40,20:0 60,40:0");
  EXPECT_EQ(cph.kmi(keyword), 1);
  set("Graph2_RB_state_saving", 0);
  page.radio(5);
  EXPECT_EQ(pixels(), "40,30:4") << "Range 2 has k2 along x and k1 along y";
  page.radio(0);
  EXPECT_EQ(cph.kmi(keyword), 1);
  EXPECT_EQ(pixels(), "20,20:1 40,20:4 60,40:5");
  page.shown();
  EXPECT_EQ(radio_index, 1) << "as the parameter says, where the state was not saved";
}

TEST_F(Graph2PageTest, ARadioButtonOfAPageThatIsNotShownCalculatesNothing) {
  page.radio(3);
  EXPECT_EQ(radio_index, 3);
  EXPECT_EQ(cph.kmi(keyword), 3);
  EXPECT_FALSE(drawn());
  EXPECT_EQ(changes, 0);
}

TEST_F(Graph2PageTest, CaptionsTellWhetherValuesAreDivided) {
  EXPECT_EQ(page.caption(0), "SR1:");
  EXPECT_EQ(page.caption(1), "SR2:");
  set("Graph2_divide_y_by_count", 1);
  EXPECT_EQ(page.caption(0), "SR1/cnt:");
  EXPECT_EQ(page.caption(1), "SR2/cnt:");
}

TEST_F(Graph2PageTest, WithoutAMapTheLabelSaysWhy) {
  page.set_image({0, 60});
  page.shown();
  EXPECT_EQ(page.label(), "No pixel");
  EXPECT_FALSE(drawn());
  lmap.clear();
  page.set_image({80, 60});
  page.shown();
  EXPECT_EQ(page.label(), " no different x");
  EXPECT_EQ(page.picture(300, 200, measure).texts.at(0).text, " no different x");
  EXPECT_TRUE(take_reports().empty());
}

TEST_F(Graph2PageTest, ABreakLeavesNoMap) {
  set("Graph_EntryCountPerDisplay", 1);
  set("Graph2_LineCountPerDisplay", 60);
  for (int check = 1; check <= 7; ++check) {
    person.break_at_check(check);
    page.shown();
    EXPECT_EQ(page.label(), " Graph2 was stopped by Break ") << check;
    EXPECT_FALSE(drawn());
    EXPECT_FALSE(person.is_open());
  }
  person.break_at_check(8);
  page.shown();
  EXPECT_TRUE(drawn()) << "there are no more checks";
}

TEST_F(Graph2PageTest, MemoryThatDoesNotSufficeIsReported) {
  {
    const LimitedAllocations limited(10'000'000);
    page.shown();
  }
  EXPECT_FALSE(drawn());
  EXPECT_EQ(page.label(), "Allocation of 46 MB not possible,\nnot enough free memory");
  EXPECT_EQ(take_reports(),
            (Reports{"beep", "error: Allocation of 46 MB not possible,\n  not enough free memory"}));
  page.shown();
  EXPECT_TRUE(drawn());
}

TEST_F(Graph2PageTest, ANumericErrorIsReported) {
  point(0, 0, cotyp::floating(1.5e308, 0));
  lmap.set(Lk::at(1, 0, 0), cotyp::floating(1.5e308, 0));
  page.shown();
  EXPECT_EQ(take_reports(),
            (Reports{"beep", "error:  MathError when calculating Graph2: \n  floating point overflow"}));
  EXPECT_EQ(page.label(), " MathError when calculating Graph2: \nfloating point overflow");
  EXPECT_FALSE(drawn());
}

TEST_F(Graph2PageTest, AnyOtherErrorIsReportedToo) {
  page.shown();
  {
    const LimitedAllocations limited(1000);
    page.redraw();
  }
  EXPECT_EQ(take_reports(), (Reports{"beep", "error: Error when calculating Graph2"}));
  EXPECT_FALSE(drawn());
}

TEST_F(Graph2PageTest, TheDistributionDecidesTheThresholds) {
  page.shown();
  EXPECT_EQ(page.drawing()->scale.fclimit()[480], 4);
  set("Graph2_color_distribution", 1);
  page.redraw();
  EXPECT_EQ(page.drawing()->scale.fclimit()[480], 3);
  EXPECT_EQ(page.drawing()->scale.fclimit()[0], 1);
  EXPECT_EQ(page.drawing()->scale.top(), 5);
}

TEST_F(Graph2PageTest, ModeAndBrightnessDecideTheColours) {
  const auto darkest = [&] {
    page.redraw();
    return page.drawing()->raster->pixels[40 * 80 + 20];
  };
  EXPECT_EQ(darkest(), 0xff7f7f7fU) << "320 / 960 of the way from 63 to 255";
  set("Graph2_color_white_offset", 0);
  EXPECT_EQ(darkest(), 0xff555555U);
  set("Graph2_color_mode", 1);
  EXPECT_EQ(darkest(), 0xffff0000U);
  set("Graph2_color_mode", 2);
  EXPECT_EQ(darkest(), 0xff00ff00U);
  set("Graph2_color_mode", 3);
  EXPECT_EQ(darkest(), 0xff0000ffU);
}

TEST_F(Graph2PageTest, AnInvalidModeIsReportedOnceAPlot) {
  force("Graph2_color_mode", "4");
  page.shown();
  EXPECT_EQ(take_reports(), (Reports{"beep", "error: clg2_from_01: invalid g2_colormode=4"}));
  EXPECT_EQ(page.drawing()->raster->pixels[40 * 80 + 20], 0xff00003fU);
}

TEST_F(Graph2PageTest, DoubleWidthIsSeenInTheRaster) {
  lmap.erase(Lk::at(2, 0, 1));
  point(1, 0, cotyp(2));
  const auto painted = [&] {
    page.redraw();
    const auto& pixels = page.drawing()->raster->pixels;
    return std::count_if(pixels.begin(), pixels.end(),
                         [](std::uint32_t pixel) { return pixel != raster_pixel(map_background); });
  };
  EXPECT_EQ(painted(), 3 * 20 * 20);
  set("Graph2_BoxDoubleWidth", 1);
  EXPECT_EQ(painted(), 3 * 40 * 20);
}

TEST_F(Graph2PageTest, PlottingIsReportedEverySoManyLines) {
  set("Graph2_LineCountPerDisplay", 25);
  page.shown();
  EXPECT_EQ(take_reports(), (Reports{"caption: Plotting line 25 of 60", "caption: Plotting line 50 of 60"}));
}

TEST_F(Graph2PageTest, ANyDrawsCurvesInstead) {
  set("Graph2a_ny", 2);
  states = {1, 2};
  page.shown();
  ASSERT_TRUE(page.drawing()->stack);
  EXPECT_FALSE(page.drawing()->raster);
  EXPECT_EQ(page.y_of_curve(0), 1);
  EXPECT_EQ(page.y_of_curve(1), 0);
  EXPECT_EQ(page.y_of_curve(2), std::nullopt);
  states = {0, 1};
  page.draw_curves_anew();
  EXPECT_EQ(page.drawing()->stack->curves[1].state, curve_blue);
  EXPECT_EQ(changes, 2);
  force("Graph2a_ny", "-100");
  page.redraw();
  EXPECT_FALSE(drawn());
  EXPECT_EQ(page.label(), "PlotMultiple1DGraphsOnGimage2: nyabs>nyabs_max");
  EXPECT_EQ(take_reports(), (Reports{"beep", "error: PlotMultiple1DGraphsOnGimage2: nyabs>nyabs_max"}));
  EXPECT_EQ(page.y_of_curve(0), std::nullopt);
}

TEST_F(Graph2PageTest, StatesOfCurvesDrawNothingWhereThereAreNone) {
  page.draw_curves_anew();
  page.shown();
  page.draw_curves_anew();
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(page.drawing()->raster);
}

TEST_F(Graph2PageTest, APictureIsCalculatedOnceForItsSize) {
  page.fit(400, 300, measure);
  page.shown();
  const Picture picture = page.picture(400, 300, measure);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(picture.rasters.at(0).width, page.drawing()->map.x.pixels);
  page.picture(400, 300, measure);
  EXPECT_EQ(changes, 1);
  page.picture(500, 300, measure);
  EXPECT_EQ(changes, 2) << "another size";
  lmap.clear();
  page.picture(500, 300, measure);
  EXPECT_EQ(changes, 2) << "what has changed is said by redraw()";
}

TEST_F(Graph2PageTest, ReleasedItIsCalculatedForTheNextPicture) {
  page.shown();
  page.release();
  EXPECT_FALSE(drawn());
  EXPECT_EQ(page.label(), "");
  EXPECT_EQ(page.picture(400, 300, measure).rasters.size(), 1u);
  EXPECT_TRUE(drawn());
}

/// Asks for a picture while the page calculates, as a window does that is painted then.
class PaintingProgress final : public Progress {
 public:
  std::function<void()> paint = [] {};
  void breathe() override {}

 protected:
  void show_box(const Box&) override { paint(); }
  void hide_box() override {}
  bool poll_break() override { return false; }
  void show_headline(const std::string&) override {}
  void show_caption(const std::string&) override {}
};

TEST_F(Graph2PageTest, WhileItCalculatesThereIsNothingToSee) {
  PaintingProgress progress;
  Graph2Page painted({lmap, tables, cph, states, radio_index, [] { return std::string(); }},
                     {person, person, progress});
  int paintings = 0;
  progress.paint = [&] {
    painted.release();
    EXPECT_TRUE(painted.picture(300, 200, measure).rasters.empty());
    EXPECT_EQ(painted.drawing(), nullptr);
    ++paintings;
  };
  painted.shown();
  EXPECT_GT(paintings, 0);
  EXPECT_NE(painted.drawing(), nullptr);
}

}  // namespace
}  // namespace kov
