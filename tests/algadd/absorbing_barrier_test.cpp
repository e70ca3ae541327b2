#include "algadd/absorbing_barrier.h"

#include <gtest/gtest.h>

#include <limits>

#include "numbers/errors.h"
#include "run_fixture.h"
#include "support/points_text.h"

namespace kov {
namespace {

Lmap row_of(const std::vector<std::pair<Lk, cotyp>>& points) {
  Lmap row;
  for (const auto& [key, q] : points) row.set(key, q);
  return row;
}

std::string applied(const AbsorbingBarrier& barrier, Lmap row) {
  barrier.apply(row, 3);
  return points_text(row);
}

const AbsorbingBarrier half{.ldest1 = 1, .ldest2 = 2, .k1 = 5, .k1add = -4, .multp = cotyp(1, 2, 0, 1)};

TEST(AbsorbingBarrier, NoneLeavesTheRowAlone) {
  const AbsorbingBarrier none{.ldest1 = 0, .ldest2 = 2, .k1 = 5, .k1add = -4, .multp = 1};
  EXPECT_EQ(applied(none, row_of({{Lk::at(0, 3), 7}})), "0 3: 7\n");
  EXPECT_EQ(none.text(), "");
}

TEST(AbsorbingBarrier, MovesBothQuantities) {
  EXPECT_EQ(applied(half, row_of({{Lk::at(0, 3), 7},
                                  {Lk::at(0, 3, 1), 8},
                                  {Lk::at(1, 3), 10},
                                  {Lk::at(1, 3, 5), 20},
                                  {Lk::at(2, 3, -4), 1}})),
            "2 3 -4: 11\n1 3: 17\n0 3 1: 8\n");
}

TEST(AbsorbingBarrier, AbsentPointsCountAsZero) {
  EXPECT_EQ(applied(half, {}), "");
  EXPECT_EQ(applied(half, row_of({{Lk::at(1, 3, 5), 20}})), "2 3 -4: 10\n");
  EXPECT_EQ(applied(half, row_of({{Lk::at(0, 3), 7}})), "1 3: 7\n");
}

TEST(AbsorbingBarrier, AZeroIsAddedToTheOriginOfLdest1Alone) {
  const cotyp beyond_exact_sums = 2147483647;
  EXPECT_EQ(applied(half, row_of({{Lk::at(1, 3), beyond_exact_sums}})), "1 3: 2147483647~\n");
  EXPECT_EQ(applied(half, row_of({{Lk::at(2, 3, -4), beyond_exact_sums}})), "2 3 -4: 2147483647\n");
}

TEST(AbsorbingBarrier, OtherRowsAndOtherCoordinatesAreNotTouched) {
  Lk aside = Lk::at(0, 3);
  aside.coo[2] = 1;
  EXPECT_EQ(applied(half, row_of({{Lk::at(0, 2), 7}, {aside, 8}, {Lk::at(0, 4), 9}})),
            "0 2: 7\n0 3 0 1: 8\n0 4: 9\n");
}

TEST(AbsorbingBarrier, SumsThatCancelVanish) {
  EXPECT_EQ(applied(half, row_of({{Lk::at(0, 3), 7}, {Lk::at(1, 3), -7}})), "");
  EXPECT_EQ(applied(half, row_of({{Lk::at(1, 3, 5), 2}, {Lk::at(2, 3, -4), -1}})), "");
}

TEST(AbsorbingBarrier, AtK1ZeroTheOriginIsEmptiedBeforeItIsFilled) {
  const AbsorbingBarrier at_origin{.ldest1 = 1, .ldest2 = 2, .k1 = 0, .k1add = 0, .multp = 1};
  EXPECT_EQ(applied(at_origin, row_of({{Lk::at(0, 3), 7}, {Lk::at(1, 3), 10}})), "1 3: 7\n2 3: 10\n");
}

TEST(AbsorbingBarrier, AFactorOfZeroLosesWhatIsAbsorbed) {
  AbsorbingBarrier lossy = half;
  lossy.multp = 0;
  EXPECT_EQ(applied(lossy, row_of({{Lk::at(1, 3, 5), 20}, {Lk::at(2, 3, -4), 1}})), "2 3 -4: 1\n");
}

TEST(AbsorbingBarrier, OverflowsAreFound) {
  const cotyp large = cotyp::floating(std::numeric_limits<double>::max(), 0);
  AbsorbingBarrier doubling = half;
  doubling.multp = 2;
  Lmap product = row_of({{Lk::at(1, 3, 5), large}});
  EXPECT_THROW(doubling.apply(product, 3), floating_overflow);
  Lmap sum = row_of({{Lk::at(0, 3), large}, {Lk::at(1, 3), large}});
  EXPECT_THROW(half.apply(sum, 3), floating_overflow);
}

class BarrierRecord : public RunFixture {};

TEST_F(BarrierRecord, ComesFromTheParametersAsAnExactFraction) {
  set("Obarr0_ldest1", -1);
  set("Obarr1_ldest2", 2);
  set("Obarr1_k1", 30);
  set("Obarr1_k1_of_add_ldest2", -4);
  set("Obarr1_multp_ldest2", 75);
  const AbsorbingBarrier barrier = AbsorbingBarrier::read(cph);
  EXPECT_TRUE(barrier.multp.re.exact());
  EXPECT_EQ(barrier.multp, cotyp(3, 4, 0, 1));
  EXPECT_EQ(barrier.text(),
            "The origin, i.e. (0,0...,0), of lattice 0\nis defined as absorbing barrier and will\n"
            "be set to 0 after every iteration.\nThe absorbed quantity will be moved\n"
            "to (0,0...,0) of lattice -1 in which (30,0...,0)\nis absorbing and the there absorbed\n"
            "quantities will be added to (-4,0,0...,0)\nof lattice 2 after multiplication by 3/4 .\n");
}

}  // namespace
}  // namespace kov
