#include "graphs/oplot.h"

#include <gtest/gtest.h>

#include "graphs/graph1_desk.h"

namespace kov {
namespace {

using Pairs = std::vector<CurvePair>;

Pairs pairs_of(const Graph1Desk& desk, std::int32_t skip_zeros) {
  return oplot_pairs(desk.par, desk.par.curve(cb0qre), desk.par.curve(cb0qim), skip_zeros);
}

/// x = -1 ... 3, where -1 and 1 hold no point.
void fill(Graph1Desk& desk) {
  desk.set(0, cotyp(5, 1, 2, 1));
  desk.set(2, cotyp(0, 1, 3, 1));
  desk.set(3, cotyp(-1, 1, 0, 1));
}

TEST(Oplot, PairsTheValuesAtEachXInItsOrder) {
  Graph1Desk desk;
  fill(desk);
  desk.calculate(100);
  EXPECT_EQ(pairs_of(desk, 0), (Pairs{{0, 0}, {5, 2}, {0, 0}, {0, 3}, {-1, 0}}));
}

TEST(Oplot, SkipsZerosAsTheParameterSays) {
  Graph1Desk desk;
  fill(desk);
  desk.calculate(100);
  EXPECT_EQ(pairs_of(desk, 1), (Pairs{{5, 2}, {0, 3}, {-1, 0}}));
  EXPECT_EQ(pairs_of(desk, 2), (Pairs{{5, 2}}));
}

TEST(Oplot, TakesEveryColumnWhereXValuesShareThem) {
  Graph1Desk desk;
  fill(desk);
  desk.calculate(2);
  EXPECT_EQ(pairs_of(desk, 0), (Pairs{{5, 2}, {-1, 3}}));
}

TEST(Oplot, ComplainsOfAnyOtherNumberOfCurves) {
  EXPECT_EQ(oplot_complaint(1), "oplot: not 2 but 1 valid curves");
  EXPECT_EQ(oplot_complaint(10), "oplot: not 2 but 10 valid curves");
}

}  // namespace
}  // namespace kov
