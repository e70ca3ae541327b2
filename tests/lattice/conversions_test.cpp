#include "lattice/conversions.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "numbers/checked_integer.h"
#include "numbers/errors.h"
#include "support/failing_allocation.h"
#include "support/points_text.h"

namespace kov {
namespace {

Lmap with(const cotyp& q) {
  Lmap lmap;
  lmap.set(Lk::at(0, 0), 2);
  lmap.set(Lk::at(0, 1), q);
  return lmap;
}

TEST(AllToFloat, MakesBothPartsFloating) {
  Lmap lmap = with(cotyp(1, 4, -3, 2));
  lmap.set(Lk::at(1, 7, 3), cotyp(ratyp(3), ratyp::floating(0.5)));
  all_to_float(lmap);
  EXPECT_EQ(points_text(lmap), "0 0: 2~ 0~i\n0 1: 0.25~ -1.5~i\n1 7 3: 3~ 0.5~i\n");
}

TEST(AllToFloat, KeepsEveryPoint) {
  Lmap lmap = with(cotyp(1, nu_max_int, 0, 1));
  all_to_float(lmap);
  EXPECT_EQ(lmap.count(), 2U);
}

struct InverseCase {
  const char* name;
  cotyp q;
  const char* inverse;
};

// clang-format off
const InverseCase inverse_cases[] = {
    {"an integer",         2,                              "1/2"},
    {"a fraction",         cotyp(-3, 4, 0, 1),             "-4/3"},
    {"imaginary",          cotyp(0, 1, 1, 1),              "0 -1i"},
    {"complex",            cotyp(1, 1, 1, 1),              "1/2 -1/2i"},
    {"floating",           cotyp::floating(0.5, 0.0),      "2~ 0~i"},
    {"floating complex",   cotyp::floating(0.0, -4.0),     "0~ 0.25~i"},
};
// clang-format on

TEST(InvertAll, ReplacesEveryQuantityByItsInverse) {
  for (const InverseCase& row : inverse_cases) {
    Lmap lmap = with(row.q);
    EXPECT_EQ(invert_all(lmap), 2U) << row.name;
    EXPECT_EQ(points_text(lmap), std::string("0 0: 1/2\n0 1: ") + row.inverse + "\n") << row.name;
  }
}

TEST(InvertAll, TwiceGivesExactQuantitiesBack) {
  Lmap lmap = with(cotyp(-5, 7, 3, 11));
  const std::string before = points_text(lmap);
  invert_all(lmap);
  EXPECT_NE(points_text(lmap), before);
  invert_all(lmap);
  EXPECT_EQ(points_text(lmap), before);
}

TEST(InvertAll, OfAnEmptyStoreInvertsNothing) {
  Lmap lmap;
  EXPECT_EQ(invert_all(lmap), 0U);
}

struct RefusedCase {
  const char* name;
  cotyp q;
};

const RefusedCase refused_cases[] = {
    {"the inverse overflows", cotyp::floating(std::numeric_limits<double>::denorm_min(), 0.0)},
    {"the square underflows", cotyp::floating(1e-200, 1e-200)},
    {"the square overflows", cotyp::floating(1e200, 0.0)},
    {"the square of the imaginary part overflows", cotyp::floating(1.0, 1e200)},
};

TEST(InvertAll, RefusesWhatHasNoFiniteInverseAndLeavesTheStoreAsItWas) {
  for (const RefusedCase& row : refused_cases) {
    Lmap lmap = with(row.q);
    const std::string before = points_text(lmap);
    EXPECT_THROW(invert_all(lmap), math_error) << row.name;
    EXPECT_EQ(points_text(lmap), before) << row.name;
  }
}

TEST(InvertAll, ReportsAnOverflowWhereAnInverseWouldVanish) {
  Lmap lmap = with(cotyp::floating(1e200, 0.0));
  try {
    invert_all(lmap);
    FAIL() << "nothing was thrown";
  } catch (const floating_overflow& error) {
    EXPECT_STREQ(error.what(), "floating point overflow");
  }
}

TEST(Conversions, LeaveTheStoreAsItWasWithoutMemory) {
  const auto as_it_was = [](const Lmap& lmap) { EXPECT_EQ(points_text(lmap), points_text(with(7))); };
  EXPECT_GT(fail_each_allocation(with(7), invert_all, as_it_was), 2);
  EXPECT_GT(fail_each_allocation(with(7), all_to_float, as_it_was), 2);
}

}  // namespace
}  // namespace kov
