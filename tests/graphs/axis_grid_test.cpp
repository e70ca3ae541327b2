#include "graphs/axis_grid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "graphs/legend.h"
#include "numbers/floating_text.h"
#include "support/picture_texts.h"
#include "support/plain_measure.h"
#include "support/recording_messages.h"

namespace kov {
namespace {

const PlainMeasure measure;

struct Drawing {
  Picture picture;
  PlotArea area;
};

Drawing draw(int width, int height, const PlotAxis& x, const PlotAxis& y, const GridOptions& options,
             const PlotMargins& margins = {}) {
  RecordingMessages messages;
  Drawing drawing;
  drawing.picture.width = width;
  drawing.picture.height = height;
  drawing.area = plot_area(width, height, options, measure, margins);
  DrawGrid(drawing.picture, drawing.area, x, y, options, measure, messages);
  EXPECT_EQ(messages.texts(), std::vector<std::string>{});
  return drawing;
}

const PlotAxis k1_axis{-4.5, 4.5, "k1", true};
const PlotAxis share{0, 1, "SR1: qre"};

std::vector<std::string> numbers_at(const Picture& picture, Anchor anchor) {
  std::vector<std::string> texts;
  for (const PictureText& text : picture.texts) {
    if (text.anchor == anchor && parse_floating(text.text)) texts.push_back(text.text);
  }
  return texts;
}

std::vector<std::string> x_numbers(const Picture& picture) { return numbers_at(picture, Anchor::centre); }
std::vector<std::string> y_numbers(const Picture& picture) { return numbers_at(picture, Anchor::right); }

TEST(DrawGrid, NumbersAndNamesOfBothAxes) {
  const Drawing drawing = draw(1000, 700, k1_axis, share, {.lines_x = 10, .lines_y = 5});
  EXPECT_EQ(x_numbers(drawing.picture),
            (std::vector<std::string>{"-4", "-3", "-2", "-1", "0", "1", "2", "3", "4"}));
  EXPECT_EQ(y_numbers(drawing.picture), (std::vector<std::string>{"1", "0.8", "0.6", "0.4", "0.2", "0"}));
  const auto named = [&](const char* name) {
    return std::ranges::find(drawing.picture.texts, name, &PictureText::text);
  };
  ASSERT_NE(named("k1"), drawing.picture.texts.end());
  EXPECT_FALSE(named("k1")->upwards);
  EXPECT_GT(named("k1")->at.y, drawing.area.top + drawing.area.height);
  ASSERT_NE(named("SR1: qre"), drawing.picture.texts.end());
  EXPECT_TRUE(named("SR1: qre")->upwards);
  EXPECT_LT(named("SR1: qre")->at.x, drawing.area.left);
}

TEST(DrawGrid, NumbersStandAtTheirLinesAndValues) {
  const Drawing drawing = draw(1000, 700, k1_axis, {1, -1, "down"}, {.lines_x = 10, .lines_y = 5});
  const PlotArea& area = drawing.area;
  for (const PictureText& text : drawing.picture.texts) {
    const auto value = parse_floating(text.text);
    if (!value) continue;
    if (text.anchor == Anchor::centre) {
      EXPECT_NEAR(text.at.x, area.left + (*value + 4.5) / 9 * area.width, 1);
    } else {
      EXPECT_NEAR(text.at.y, area.top + area.height * (1 + *value) / 2, 1);
    }
    const auto ends_there = [&](const PictureLine& line) {
      return line.points.size() == 2 &&
             (text.anchor == Anchor::centre ? line.points[0].x == text.at.x && line.points[1].x == text.at.x
                                            : line.points[0].y == text.at.y && line.points[1].y == text.at.y);
    };
    EXPECT_EQ(std::ranges::count_if(drawing.picture.lines, ends_there), 2) << text.text;
  }
}

TEST(DrawGrid, LinesLieOnWholePixelsOfThePlot) {
  const Drawing drawing = draw(640, 480, {0, 1, "x"}, {-3, 3, "y"}, {.lines_x = 30, .lines_y = 20});
  const PlotArea& area = drawing.area;
  for (const PictureLine& line : drawing.picture.lines) {
    if (line.points.size() != 2) continue;
    const bool upright = line.points[0].x == line.points[1].x;
    const double place = upright ? line.points[0].x : line.points[0].y;
    EXPECT_EQ(place - std::floor(place), 0.5);
    EXPECT_GT(place, upright ? area.left : area.top);
    EXPECT_LT(place, upright ? area.left + area.width : area.top + area.height);
  }
}

/// How many lines cross the whole plot.
long grid_lines(const Drawing& drawing, bool upright) {
  return std::ranges::count_if(drawing.picture.lines, [&](const PictureLine& line) {
    if (line.points.size() != 2) return false;
    const double dx = line.points[1].x - line.points[0].x, dy = line.points[1].y - line.points[0].y;
    return upright ? dx == 0 && dy == drawing.area.height : dy == 0 && dx == drawing.area.width;
  });
}

TEST(DrawGrid, AsManyLinesAsWanted) {
  const PlotAxis x{0, 1, "x"}, y{0, 1, "y"};
  for (const int wanted : {0, 1, 2, 9}) {
    const GridOptions equal{.lines_x = wanted, .lines_y = 3, .round_values = false};
    EXPECT_EQ(grid_lines(draw(1000, 700, x, y, equal), true), wanted);
    EXPECT_EQ(grid_lines(draw(1000, 700, x, y, equal), false), 3);
  }
  EXPECT_EQ(grid_lines(draw(1000, 700, x, y, {.lines_x = 5, .lines_y = 10}), true), 6);
  EXPECT_EQ(grid_lines(draw(1000, 700, x, y, {.lines_x = 5, .lines_y = 10}), false), 11);
}

TEST(DrawGrid, WithoutLinesThereAreNoNumbers) {
  const Drawing drawing = draw(1000, 700, k1_axis, share, {.lines_x = 0, .lines_y = 0});
  EXPECT_EQ(x_numbers(drawing.picture), std::vector<std::string>{});
  EXPECT_EQ(y_numbers(drawing.picture), std::vector<std::string>{});
}

TEST(DrawGrid, LinesNeverFillThePlot) {
  const Drawing drawing =
      draw(500, 400, {0, 1, "x"}, {0, 1, "y"}, {.lines_x = 300, .lines_y = 200, .round_values = false});
  EXPECT_LE(grid_lines(drawing, true), drawing.area.width / 4);
  EXPECT_LE(grid_lines(drawing, false), drawing.area.height / 4);
  EXPECT_GT(grid_lines(drawing, true), 50);
}

TEST(DrawGrid, DigitsOfEqualDivisions) {
  const PlotAxis third{0, 1, "x"};
  GridOptions options{.lines_x = 4, .lines_y = 4, .round_values = false, .digits = 3};
  EXPECT_EQ(x_numbers(draw(1000, 700, third, share, options).picture)[1], "0.333");
  options.digits = 6;
  EXPECT_EQ(x_numbers(draw(1000, 700, third, share, options).picture)[1], "0.333333");
}

TEST(DrawGrid, CrowdedNumbersGiveWayToTheRounderOnes) {
  const PlotAxis x{0, 900, "n", true};
  const auto numbers = x_numbers(draw(700, 400, x, share, {.lines_x = 90}).picture);
  ASSERT_GT(numbers.size(), 3U);
  EXPECT_EQ(numbers[0], "0");
  EXPECT_EQ(numbers[1], "50");
  EXPECT_EQ(numbers[2], "100");
}

TEST(DrawGrid, ReportsAnUnknownColourMode) {
  for (const int mode : {-1, 6, 1000}) {
    RecordingMessages messages;
    Picture picture;
    picture.width = 500;
    picture.height = 400;
    const GridOptions options{.colour_mode = mode};
    DrawGrid(picture, plot_area(500, 400, options, measure), k1_axis, share, options, measure, messages);
    EXPECT_EQ(messages.shown,
              (std::vector<RecordedMessage>{{MessageKind::error, "DrawGrid: invalid colormode"}}));
    EXPECT_GT(picture.lines.size(), 5U);
  }
}

TEST(DrawGrid, EveryColourModeLooksDifferent) {
  std::vector<Colour> colours;
  for (int mode = 0; mode <= 5; ++mode) {
    const Colour colour = draw(500, 400, k1_axis, share, {.colour_mode = mode}).picture.lines.front().colour;
    EXPECT_EQ(std::ranges::count(colours, colour), 0) << mode;
    colours.push_back(colour);
  }
}

TEST(DrawGrid, BlackAndWhiteIsNothingElse) {
  const Drawing drawing = draw(500, 400, k1_axis, share, {.colour_mode = grid_mode_black_white});
  for (const PictureLine& line : drawing.picture.lines) EXPECT_EQ(line.colour, (Colour{0, 0, 0}));
  for (const PictureText& text : drawing.picture.texts) EXPECT_EQ(text.colour, (Colour{0, 0, 0}));
}

TEST(PlotArea, DependsOnDigitsAndMarginsAlone) {
  const PlotArea area = plot_area(1000, 700, {}, measure);
  EXPECT_LT(plot_area(1000, 700, {.digits = 17}, measure).width, area.width);
  EXPECT_EQ(plot_area(1000, 700, {}, measure, {.above = 30}).top, area.top + 30);
  EXPECT_EQ(plot_area(1000, 700, {}, measure, {.above = 30}).height, area.height - 30);
  const PlotArea beside = plot_area(1000, 700, {}, measure, {.right = 200});
  EXPECT_EQ(beside.left + beside.width, 800);
  for (const double edge : {area.left, area.top, area.width, area.height}) EXPECT_EQ(edge, std::floor(edge));
}

TEST(PlotArea, TakesAllWhereMarginsWouldTakeTooMuch) {
  EXPECT_EQ(plot_area(150, 700, {}, measure), (PlotArea{0, 0, 150, 700}));
  EXPECT_EQ(plot_area(1000, 60, {}, measure), (PlotArea{0, 0, 1000, 60}));
  EXPECT_EQ(plot_area(0, 0, {}, measure), (PlotArea{0, 0, 0, 0}));
  EXPECT_EQ(plot_area(1000, 700, {}, measure, {.above = 400}), (PlotArea{0, 0, 1000, 700}));
}

TEST(GridOptions, AreThoseOfTheParameters) {
  RecordingMessages messages;
  cphclass cph(messages);
  cph.InitPrgPar({});
  cph.setkmi_1("Graph_Gridlines_x", 31);
  cph.setkmi_1("Graph_Gridlines_y", 17);
  cph.setkmi_1("Graph_num_precision", 9);
  GridOptions options = grid_options(cph, 3);
  EXPECT_EQ(options.lines_x, 31);
  EXPECT_EQ(options.lines_y, 17);
  EXPECT_EQ(options.digits, 9);
  EXPECT_EQ(options.colour_mode, 3);
  EXPECT_TRUE(options.round_values);
  cph.setkmi_1("Graph_Gridlines_Auto", 0);
  EXPECT_FALSE(grid_options(cph, 3).round_values);
}

PlotAxis random_axis(std::mt19937_64& random) {
  const auto between = [&](double low, double high) {
    return std::uniform_real_distribution<>(low, high)(random);
  };
  const double from = std::pow(10.0, between(-300, 308)) * (random() % 2 == 0 ? 1 : -1);
  switch (random() % 5) {
    case 0:
      return {from, -from, "mirrored"};
    case 1:
      return {from, from * (1 + between(-1E-12, 1E-12)), "a tiny span"};
    case 2:
      return {from, std::pow(10.0, between(-300, 308)), "of any size"};
    case 3:
      return {std::floor(between(-2147483648.0, 2147483647.0)) - 0.5, between(-2147483648.0, 2147483647.0),
              "k17", true};
    default: {
      const double low = std::floor(between(-3000, 3000));
      return {low - 0.5, low + std::floor(between(0, 100)) + 0.5, "n", true};
    }
  }
}

TEST(DrawGrid, NothingOverlapsOrLeavesThePictureWhateverIsDrawn) {
  std::mt19937_64 random(4);
  int numbers = 0;
  for (int i = 0; i < 2000; ++i) {
    const int width = static_cast<int>(random() % 1500), height = static_cast<int>(random() % 1000);
    const GridOptions options{.lines_x = static_cast<int>(random() % 100),
                              .lines_y = static_cast<int>(random() % 100),
                              .round_values = random() % 2 == 0,
                              .digits = 1 + static_cast<int>(random() % 17),
                              .colour_mode = static_cast<int>(random() % 6)};
    const Drawing drawing = draw(width, height, random_axis(random), random_axis(random), options);
    const std::string fault = text_fault(drawing.picture, measure);
    ASSERT_EQ(fault, "") << i;
    const auto x = x_numbers(drawing.picture), y = y_numbers(drawing.picture);
    ASSERT_EQ(std::set(x.begin(), x.end()).size(), x.size());
    ASSERT_EQ(std::set(y.begin(), y.end()).size(), y.size());
    numbers += static_cast<int>(x.size() + y.size());
  }
  EXPECT_GT(numbers, 8000);
}

TEST(DrawGrid, NumbersAreSixPixelsApart) {
  std::mt19937_64 random(5);
  for (int i = 0; i < 500; ++i) {
    const GridOptions options{.lines_x = 300, .lines_y = 200};
    const Drawing drawing =
        draw(400 + static_cast<int>(random() % 900), 300 + static_cast<int>(random() % 600),
             random_axis(random), random_axis(random), options);
    std::vector<TextExtent> x, y;
    for (const PictureText& text : drawing.picture.texts) {
      if (!parse_floating(text.text)) continue;
      (text.anchor == Anchor::centre ? x : y).push_back(extent_of(text, measure));
    }
    std::ranges::sort(x, {}, &TextExtent::left);
    std::ranges::sort(y, {}, &TextExtent::top);
    for (std::size_t n = 1; n < x.size(); ++n) ASSERT_GE(x[n].left, x[n - 1].right + 6 - 1E-9);
    for (std::size_t n = 1; n < y.size(); ++n) ASSERT_GE(y[n].top, y[n - 1].bottom + 6 - 1E-9);
  }
}

}  // namespace
}  // namespace kov
