#include "algadd/kernel.h"

#include <gtest/gtest.h>

#include <limits>

#include "numbers/errors.h"
#include "run_fixture.h"
#include "support/points_text.h"
#include "text/integers.h"

namespace kov {
namespace {

std::string stepped(const std::vector<AlgaddEntry>& entries, const Lk& key, const cotyp& q, Lmap row = {}) {
  Algadd algadd;
  int i = 0;
  for (const AlgaddEntry& entry : entries) algadd.set_entry(5, i++, entry);
  AddLpairToLmap_1(algadd, row, key, q, algadd.used_length(5), 5);
  return points_text(row);
}

TEST(Kernel, ShiftsAndWeighs) {
  EXPECT_EQ(stepped({entry_of(cotyp(1, 2, 0, 1), 1), entry_of(cotyp(0, 1, 1, 3), -1)}, Lk::at(0, 4, 10), 6),
            "0 5 9: 0 2i\n0 5 11: 3\n");
}

TEST(Kernel, OnlyEntriesOfTheSourceLatticeAct) {
  const std::vector<AlgaddEntry> entries = {entry_of(2, 0, 0, 7), entry_of(3, 0, 1, 8), entry_of(0, 0, 1, 9)};
  EXPECT_EQ(stepped(entries, Lk::at(1, 0), 5), "8 1: 15\n");
  EXPECT_EQ(stepped(entries, Lk::at(2, 0), 5), "");
}

TEST(Kernel, OffsetsReachEveryCoordinateAndWrap) {
  Lk offset = Lk::filled(1);
  offset.coo[l_position] = -3;
  Lk source = Lk::filled(highest_int);
  source.coo[l_position] = -3;
  source.coo[30] = 4;
  Lk target = Lk::filled(lowest_int);
  target.coo[l_position] = -9;
  target.coo[30] = 5;
  Algadd algadd;
  algadd.set_entry(0, 0, {.p = 1, .ldest = -9, .offset = offset});
  Lmap row;
  AddLpairToLmap_1(algadd, row, source, 2, 1, 0);
  EXPECT_EQ(row.count(), 1u);
  EXPECT_EQ(row.get(target), cotyp(2));
}

TEST(Kernel, ContributionsAddUpAndCancel) {
  EXPECT_EQ(stepped({entry_of(1), entry_of(cotyp(1, 2, 0, 1))}, Lk::at(0, 0), 3), "0 1: 9/2\n");
  EXPECT_EQ(stepped({entry_of(1), entry_of(-1)}, Lk::at(0, 0), 3), "");
  EXPECT_EQ(stepped({entry_of(1), entry_of(-1), entry_of(2)}, Lk::at(0, 0), 3), "0 1: 6\n");
}

TEST(Kernel, AProductThatUnderflowsToZeroIsNotInserted) {
  EXPECT_EQ(stepped({entry_of(cotyp::floating(1e-200, 0))}, Lk::at(0, 0), cotyp::floating(1e-200, 0)), "");
}

TEST(Kernel, EntriesBehindTheUsedLengthDoNotAct) {
  Algadd algadd;
  algadd.set_entry(0, 0, entry_of(1, 0));
  algadd.set_entry(0, 1, entry_of(1, 1));
  Lmap row;
  AddLpairToLmap_1(algadd, row, Lk::at(0, 0), 1, 1, 0);
  EXPECT_EQ(points_text(row), "0 1: 1\n");
}

TEST(Kernel, ZeroSourcesAreRefused) {
  for (const cotyp& zero : {cotyp(), cotyp::floating(0.0, -0.0)}) {
    try {
      stepped({}, Lk::at(0, 0), zero);
      ADD_FAILURE() << "nothing was thrown";
    } catch (const program_error& error) {
      EXPECT_STREQ(error.what(), "AddLpairToLmap_1: add of zero quantity,\nprobably underflow");
    }
  }
}

TEST(Kernel, OverflowsOfProductsAndSumsAreFound) {
  constexpr double huge = std::numeric_limits<double>::max();
  const cotyp large = cotyp::floating(huge, 0);
  EXPECT_THROW(stepped({entry_of(2)}, Lk::at(0, 0), large), floating_overflow);
  EXPECT_THROW(stepped({entry_of(1), entry_of(1)}, Lk::at(0, 0), large), floating_overflow);
  EXPECT_THROW(stepped({entry_of(cotyp(0, 1, 1, 1)), entry_of(cotyp(0, 1, 1, 1))}, Lk::at(0, 0), large),
               floating_overflow)
      << "in the imaginary part alone";
  const cotyp diagonal = cotyp::floating(1e200, 1e200);
  EXPECT_THROW(stepped({entry_of(diagonal)}, Lk::at(0, 0), diagonal), floating_overflow)
      << "infinity minus infinity";
  Lmap row;
  row.set(Lk::at(0, 1), large);
  EXPECT_EQ(stepped({entry_of(-1)}, Lk::at(0, 0), large, row), "") << "the largest double is no overflow";
}

}  // namespace
}  // namespace kov
