#include "graphs/graph2_picture.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "graphs/map_desk.h"

namespace kov {
namespace {

class Graph2PictureTest : public testing::Test, protected MapDesk {
 protected:
  Graph2PictureTest() {
    for (std::int32_t n = 0; n < 30; ++n) {
      for (std::int32_t k1 = -n; k1 <= n; k1 += 2) point(n, k1, cotyp(n + 1, k1 * k1 + 2, 0, 1));
    }
  }
  Picture picture(int width = 700, int height = 500) {
    page.release();
    return page.picture(width, height, measure);
  }
  static bool has_text(const Picture& picture, const std::string& text) {
    return std::any_of(picture.texts.begin(), picture.texts.end(),
                       [&](const PictureText& shown) { return shown.text == text; });
  }
  static std::vector<std::string> texts_that_begin(const Picture& picture, const std::string& beginning) {
    std::vector<std::string> texts;
    for (const PictureText& text : picture.texts) {
      if (text.text.starts_with(beginning)) texts.push_back(text.text);
    }
    return texts;
  }
  void expect_texts_inside(const Picture& picture) {
    for (const PictureText& text : picture.texts) {
      if (text.upwards) continue;
      const double width = measure.width(text.text, text.size);
      const double left = text.at.x - (text.anchor == Anchor::left    ? 0
                                       : text.anchor == Anchor::right ? width
                                                                      : width / 2);
      EXPECT_GE(left, 0) << text.text;
      EXPECT_LE(left + width, picture.width) << text.text;
      EXPECT_GE(text.at.y - measure.height(text.size) / 2, 0) << text.text;
      EXPECT_LE(text.at.y + measure.height(text.size) / 2, picture.height) << text.text;
    }
  }
};

TEST_F(Graph2PictureTest, AMapHasTitleAxesAndLegend) {
  const Picture map = picture();
  EXPECT_TRUE(has_text(map, "walk.aa1, range table 0, SR1: re, l=-...+ n=-...+ k1...k30=-...+"));
  EXPECT_TRUE(has_text(map, "k1"));
  EXPECT_TRUE(has_text(map, "n"));
  EXPECT_TRUE(has_text(map, "-20")) << "a number of the x axis";
  EXPECT_EQ(map.boxes.size(), static_cast<std::size_t>(colour_field_count));
  ASSERT_EQ(map.rasters.size(), 1u);
  const PlotArea area = graph2_plot_area(cph, 700, 500, measure);
  EXPECT_EQ(map.rasters[0].left, area.left);
  EXPECT_EQ(map.rasters[0].top, area.top);
  EXPECT_EQ(map.rasters[0].width, area.width);
  EXPECT_EQ(map.rasters[0].height, area.height);
  expect_texts_inside(map);
}

TEST_F(Graph2PictureTest, TheBackgroundIsNoColourOfAnyRamp) {
  const Colour background = picture().background;
  for (int mode = 0; mode <= 3; ++mode) {
    for (int white = 0; white <= 100; white += 5) {
      for (int i = 0; i <= 3000; ++i) EXPECT_NE(ColourRamp(mode, white).at(i / 3000.0), background);
    }
  }
}

TEST_F(Graph2PictureTest, TheLegendNamesTheThresholdsOfTheScale) {
  ColourScale scale(ColourRamp(1, 0));
  scale.set_linear_fclimit(-10, 30);
  const std::vector<ColourField> fields = colour_fields(scale, 3);
  ASSERT_EQ(fields.size(), 21u);
  for (int label = 0; label <= 20; ++label) {
    const ColourField& field = fields[static_cast<std::size_t>(label)];
    EXPECT_EQ(field.text, int_text(-10 + 2 * label));
    EXPECT_EQ(field.colour, scale.ramp().at(label / 20.0));
  }
  scale.set_linear_fclimit(0, 100.0 / 3);
  EXPECT_EQ(colour_fields(scale, 3)[20].text, "33.3");
  EXPECT_EQ(colour_fields(scale, 6)[20].text, "33.3333");
}

TEST_F(Graph2PictureTest, TheNameSaysWhatIsSummed) {
  ValueMap map;
  const std::vector<std::string> names = {"SR1: re", "SR1: im", "SR1: qa", "SR1: qq", "SR1: cntAt",
                                          "SR2: re", "SR2: im", "SR2: qa", "SR2: qq", "SR2: cntAt"};
  for (int radio = 0; radio < MapChoice::count; ++radio) {
    map.choice = MapChoice::of_radio(radio);
    EXPECT_EQ(map_name(map, false), names[static_cast<std::size_t>(radio)]);
  }
  map.choice = MapChoice::of_radio(0);
  EXPECT_EQ(map_name(map, true), "SR1/cnt: re");
}

TEST_F(Graph2PictureTest, ParametersOfTheGridAreObeyed) {
  const Picture plain = picture();
  const std::size_t lines = plain.lines.size();
  set("Graph_Gridlines_x", 30);
  EXPECT_GT(picture().lines.size(), lines);
  set("Graph_Gridlines_x", 0);
  EXPECT_LT(picture().lines.size(), lines);
  set("Graph_Gridlines_x", 8);
  set("Graph_Gridlines_y", 20);
  EXPECT_GT(picture().lines.size(), lines);
  set("Graph_Gridlines_y", 4);
  set("Graph_Gridlines_Auto", 0);
  EXPECT_FALSE(has_text(picture(), "-20")) << "equal divisions of -30 ... 30 are no round values";
  set("Graph_num_precision", 12);
  EXPECT_GT(picture().texts.size(), 0u);
  EXPECT_LT(picture().rasters[0].width, plain.rasters[0].width) << "numbers need more room";
  set("Graph2_color_mode", 1);
  EXPECT_NE(picture().lines[0].colour, plain.lines[0].colour)
      << "lines stand out from the colours of the map";
}

TEST_F(Graph2PictureTest, AnUnknownColourModeIsReportedByTheGrid) {
  force("Graph2_color_mode", "7");
  picture();
  EXPECT_EQ(take_reports(), (Reports{"beep", "error: clg2_from_01: invalid g2_colormode=7", "beep",
                                     "error: DrawGrid: invalid colormode"}));
}

TEST_F(Graph2PictureTest, CurvesHaveLabelsWithTheirY) {
  set("Graph2a_ny", 5);
  set("Graph2a_max_dypix_per_plot", 30);
  reset_curve_states(states, 5);
  const Picture stack = picture();
  EXPECT_TRUE(stack.rasters.empty());
  EXPECT_TRUE(stack.boxes.empty());
  EXPECT_TRUE(has_text(stack, "SR1: re")) << "the value axis";
  EXPECT_EQ(texts_that_begin(stack, "y = "),
            (std::vector<std::string>{"y = 29", "y = 25", "y = 28", "y = 27", "y = 26"}))
      << "selected curves first";
  expect_texts_inside(stack);
  const auto curve = stack.lines.end() - 5;
  EXPECT_EQ(curve[4].colour, curve_colour(curve_blue)) << "the frontal one is painted last";
  EXPECT_EQ(curve[0].colour, curve_colour(curve_red));
}

TEST_F(Graph2PictureTest, LabelsOfCurvesDoNotOverlap) {
  set("Graph2a_ny", 20);
  set("Graph2a_max_dypix_per_plot", 4);
  reset_curve_states(states, 20);
  const Picture stack = picture();
  std::vector<double> heights;
  for (const PictureText& text : stack.texts) {
    if (text.text.starts_with("y = ")) heights.push_back(text.at.y);
  }
  std::sort(heights.begin(), heights.end());
  ASSERT_GT(heights.size(), 2u);
  ASSERT_LT(heights.size(), 20u);
  for (std::size_t i = 1; i < heights.size(); ++i) EXPECT_GE(heights[i] - heights[i - 1], measure.height(12));
  EXPECT_TRUE(has_text(stack, "y = 29") && has_text(stack, "y = 10")) << "blue and red";
}

TEST_F(Graph2PictureTest, AnImageThatWasCutKeepsItsPixels) {
  const Picture map = picture(4000, 300);
  EXPECT_EQ(map.rasters[0].width, 3000);
  EXPECT_EQ(take_reports().size(), 2u);
}

TEST_F(Graph2PictureTest, InASmallPictureTheImageIsEverything) {
  const Picture map = picture(60, 50);
  EXPECT_EQ(map.rasters[0].width, 60);
  EXPECT_EQ(map.rasters[0].height, 50);
  expect_texts_inside(map);
  set("Graph2a_ny", 3);
  expect_texts_inside(picture(60, 50));
}

}  // namespace
}  // namespace kov
