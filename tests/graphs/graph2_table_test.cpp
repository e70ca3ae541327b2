#include "graphs/graph2_table.h"

#include <gtest/gtest.h>

#include "graphs/map_desk.h"

namespace kov {
namespace {

class Graph2TableTest : public testing::Test, protected MapDesk {
 protected:
  Graph2TableTest() {
    point(3, -1, cotyp(1, 3, 0, 1));
    point(3, 1, cotyp(1));
    point(4, 0, cotyp(-2));
    page.set_image({8, 6});
    set("Graph2_color_white_offset", 0);
  }
};

using Rows = std::vector<std::vector<double>>;

TEST_F(Graph2TableTest, OfAMapHasEveryValue) {
  page.shown();
  const GraphTable table = page.table();
  EXPECT_EQ(table.heading, (std::vector<std::string>{"k1", "n", "SR1: re"}));
  EXPECT_EQ(table.rows, (Rows{{-1, 3, 1.0 / 3}, {0, 4, -2}, {1, 3, 1}}));
}

TEST_F(Graph2TableTest, OfCurvesHasAColumnForEach) {
  set("Graph2a_ny", 2);
  page.shown();
  const GraphTable table = page.table();
  EXPECT_EQ(table.heading, (std::vector<std::string>{"k1", "y = 4", "y = 3"}));
  EXPECT_EQ(table.rows, (Rows{{-1, 0, 1.0 / 3}, {0, -2, 0}, {1, 0, 1}}));
}

TEST_F(Graph2TableTest, WithoutADrawingItIsEmpty) { EXPECT_TRUE(page.table().heading.empty()); }

TEST_F(Graph2TableTest, PixelsAreWrittenWithTheColourOfTheScale) {
  page.shown();
  std::string lines;
  write_map_pixels(*page.drawing(), [&](const std::string& line) { lines += line; });
  EXPECT_EQ(lines, "2\t2\t0.3333333333333333\t#aaaaaa\n4\t4\t-2\t#555555\n6\t2\t1\t#ffffff\n");
  set("Graph2_color_mode", 1);
  page.redraw();
  lines.clear();
  write_map_pixels(*page.drawing(), [&](const std::string& line) { lines += line; });
  EXPECT_EQ(lines, "2\t2\t0.3333333333333333\t#ffff00\n4\t4\t-2\t#ff0000\n6\t2\t1\t#ffffff\n");
}

}  // namespace
}  // namespace kov
