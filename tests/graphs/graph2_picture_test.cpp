#include "graphs/graph2_picture.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "graphs/map_desk.h"
#include "support/picture_texts.h"

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

TEST_F(Graph2PictureTest, TheTitleFollowsTheFile) {
  int changes = 0;
  page.set_changed([&] { ++changes; });
  page.file_renamed();
  EXPECT_EQ(changes, 0) << "nothing is drawn";
  picture();
  file_name = "other.aa1";
  changes = 0;
  page.file_renamed();
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(has_text(page.picture(700, 500, measure),
                       "other.aa1, range table 0, SR1: re, l=-...+ n=-...+ k1...k30=-...+"));
  EXPECT_EQ(changes, 1) << "nothing is calculated";
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

TEST_F(Graph2PictureTest, FewValuesHaveTheirOwnColoursInTheLegend) {
  ColourScale scale(ColourRamp(0, 0));
  scale.Set_equally_distributed_fclimit({1, 2, 3}, person);
  // Thirds of 21 fields; each value in the colour that it has in the map.
  const std::vector<ColourField> fields = colour_fields(scale, 4);
  for (std::size_t label = 0; label <= 20; ++label) {
    const double value = label <= 6 ? 1 : label <= 13 ? 2 : 3;
    EXPECT_EQ(fields[label].text, floating_text(value, 4)) << label;
    EXPECT_EQ(fields[label].colour, scale.color_from_fcl_table(value, person)) << label;
  }
  EXPECT_EQ(fields[0].colour, (Colour{85, 85, 85}));
  EXPECT_EQ(fields[20].colour, (Colour{255, 255, 255}));
}

TEST_F(Graph2PictureTest, BothDistributionsLabelTheirOwnThresholds) {
  const auto labels = [](const Picture& map) {
    std::vector<std::string> texts;
    for (std::size_t i = map.texts.size() - colour_field_count; i < map.texts.size(); ++i) {
      texts.push_back(map.texts[i].text);
    }
    return texts;
  };
  const auto distributed = labels(picture());
  set("Graph2_color_distribution", 1);
  const auto linear = labels(picture());
  EXPECT_EQ(distributed.front(), linear.front());
  EXPECT_EQ(distributed.back(), linear.back());
  EXPECT_NE(distributed[10], linear[10]);
}

TEST_F(Graph2PictureTest, WhiteStandsOutFromTheBackground) {
  const Colour background = picture().background;
  EXPECT_LT(0.3 * background.r + 0.59 * background.g + 0.11 * background.b, 255 - 40);
}

TEST_F(Graph2PictureTest, CurvesStandOnPaperWithTheGridOfTheParameters) {
  set("Graph2a_ny", 3);
  set("Graph2_color_mode", 0);
  const Picture grey = picture();
  EXPECT_EQ(grey.background, (Colour{255, 255, 255}));
  set("Graph2_color_mode", 1);
  const Picture red = picture();
  ASSERT_EQ(grey.lines.size(), red.lines.size());
  for (std::size_t i = 0; i < red.lines.size(); ++i) EXPECT_EQ(grey.lines[i].colour, red.lines[i].colour);
  set("Graph_Gridlines_y", 20);
  EXPECT_GT(picture().lines.size(), grey.lines.size());
  set("Graph_Gridlines_x", 0);
  EXPECT_FALSE(has_text(picture(), "-20"));
  set("Graph_Gridlines_x", 8);
  EXPECT_TRUE(has_text(picture(), "-20"));
  set("Graph_Gridlines_Auto", 0);
  EXPECT_FALSE(has_text(picture(), "-20"));
  const auto numbers = [this](std::int32_t digits) {
    set("Graph_num_precision", digits);
    std::vector<std::string> texts;
    for (const PictureText& text : picture().texts) texts.push_back(text.text);
    return texts;
  };
  EXPECT_NE(numbers(3), numbers(9));
}

TEST_F(Graph2PictureTest, EveryCurveHasItsLabelAndTheFrontalOneIsPaintedLast) {
  set("Graph2a_ny", 5);
  reset_curve_states(states, 5);
  const Picture stack = picture();
  EXPECT_TRUE(stack.rasters.empty());
  EXPECT_TRUE(stack.boxes.empty());
  EXPECT_TRUE(has_text(stack, "SR1: re")) << "the value axis";
  EXPECT_EQ(texts_that_begin(stack, "y = "),
            (std::vector<std::string>{"y = 29", "y = 28", "y = 27", "y = 26", "y = 25"}));
  EXPECT_EQ(text_fault(stack, measure), "");
  // Behind the curves come the lines that lead to their labels.
  const auto curve = stack.lines.end() - 10;
  EXPECT_EQ(curve[4].colour, curve_colour(curve_blue));
  EXPECT_EQ(curve[0].colour, curve_colour(curve_red));
  EXPECT_GT(curve[4].width, curve[3].width) << "selected curves stand out";
}

TEST_F(Graph2PictureTest, OnePixelIsAPicture) {
  for (const int ny : {0, 2, -2}) {
    set("Graph2a_ny", ny);
    const Picture one = picture(1, 1);
    EXPECT_EQ(one.width, 1);
    EXPECT_TRUE(one.texts.empty());
    EXPECT_EQ(page.label(), "");
  }
}

TEST_F(Graph2PictureTest, CoordinatesAtTheEndsOf32BitsAreWritten) {
  lmap.clear();
  point(lowest_int, lowest_int, cotyp(1));
  point(highest_int, highest_int, cotyp(2));
  const Picture map = picture();
  EXPECT_TRUE(has_text(map, "2000000000") || has_text(map, "-2000000000"));
  EXPECT_EQ(text_fault(map, measure), "");
  set("Graph2a_ny", -2);
  const Picture curves = picture();
  EXPECT_TRUE(has_text(curves, "y = -2147483648"));
  EXPECT_TRUE(has_text(curves, "y = 2147483647"));
  EXPECT_EQ(text_fault(curves, measure), "");
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
