#include "lattice/column.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "support/failing_allocation.h"
#include "support/same_part.h"

namespace kov {
namespace {

const ratyp column_half(1, 2);
const ratyp column_double = ratyp::floating(0.5);

void expect_parts(const Column& column, const std::vector<ratyp>& parts, const std::string& what) {
  ASSERT_EQ(column.size(), parts.size()) << what;
  std::vector<ratyp> decoded(parts.size());
  std::vector<double> values(parts.size());
  column.decode(0, decoded);
  column.decode(0, values);
  for (std::size_t i = 0; i < parts.size(); ++i) {
    EXPECT_TRUE(same_part(column.get(i), parts[i])) << what << ", part " << i;
    EXPECT_TRUE(same_part(decoded[i], parts[i])) << what << ", decoded part " << i;
    EXPECT_EQ(std::bit_cast<std::uint64_t>(values[i]), std::bit_cast<std::uint64_t>(to_double(parts[i])))
        << what << ", value " << i;
  }
}

struct FormCase {
  std::vector<ratyp> parts;
  PartForm form;
  std::size_t bytes_a_part;
  /// Of the states, in words of 8 bytes.
  std::size_t bytes_of_states = 0;
};

TEST(Column, OfTakesTheSmallestForm) {
  const ratyp third(1, 3);
  // Coprime denominators whose product leaves the exact range.
  const ratyp rare(1, 2147483629);
  const FormCase cases[] = {
      // clang-format off
      {{},                                           PartForm::zero,          0},
      {{0, 0, 0},                                    PartForm::zero,          0},
      {{ratyp::floating(0.0), ratyp::floating(-0.0)}, PartForm::floating_zero, 0},
      {{0, 5, -7},                                   PartForm::integers,      4},
      {{INT32_MAX, INT32_MIN},                       PartForm::integers,      4},
      {{column_half, third, -4},                     PartForm::integers,      4},
      {{column_half, INT32_MAX},                     PartForm::fractions,     8},
      {{column_half, 1073741823},                    PartForm::integers,      4},
      {{column_half, 1073741824},                    PartForm::fractions,     8},
      {{third, rare},                                PartForm::fractions,     8},
      {{ratyp(INT32_MIN, 3), 1},                     PartForm::fractions,     8},
      {{column_double, ratyp::floating(0.0)},        PartForm::doubles,       8},
      {{ratyp::floating(0.0), 0},                    PartForm::mixed_zeros,   0, 8},
      {{column_double, 0, 7},                        PartForm::mixed_integers, 8, 8},
      {{column_double, INT32_MIN, INT32_MAX},        PartForm::mixed_integers, 8, 8},
      {{column_double, column_half},                 PartForm::mixed,         8, 8},
      {{column_double, column_half, 1},              PartForm::mixed,         8, 8},
      // clang-format on
  };
  for (const FormCase& c : cases) {
    const std::string what = "case " + std::to_string(&c - cases);
    const Column column = Column::of(c.parts);
    EXPECT_EQ(column.form(), c.form) << what;
    EXPECT_EQ(column.bytes(), c.bytes_a_part * c.parts.size() + c.bytes_of_states) << what;
    expect_parts(column, c.parts, what);
  }
}

TEST(Column, IntegersShareADenominatorAndAreReducedWhenRead) {
  const std::vector<std::int32_t> numerators{3, -4, 0, 6};
  const Column column = Column::integers(numerators, 6);
  EXPECT_EQ(column.denominator(), 6);
  EXPECT_EQ(column.largest_numerator(), 6U);
  EXPECT_EQ(column.integers()[1], -4);
  EXPECT_EQ(column.doubles(), nullptr);
  EXPECT_EQ(column.fractions(), nullptr);
  expect_parts(column, {ratyp(1, 2), ratyp(-2, 3), 0, 1}, "sixths");
}

TEST(Column, IntegersAndDoublesTakeTheFormOfTheirParts) {
  std::mt19937 engine(7);
  for (int run = 0; run < 500; ++run) {
    const std::size_t count = engine() % 200;
    const auto exact_of_8 = engine() % 9;
    const auto zeros_of_4 = engine() % 5;
    std::vector<ratyp> parts(count);
    for (ratyp& part : parts) {
      const bool exact = engine() % 8 < exact_of_8;
      const auto number = engine() % 4 < zeros_of_4 ? 0 : static_cast<std::int32_t>(engine());
      part = exact ? ratyp(number) : ratyp::floating(0.5 * number);
    }
    std::vector<double> values(count);
    std::transform(parts.begin(), parts.end(), values.begin(), to_double);
    const Column column = Column::integers_and_doubles(
        values, BitList::made(count, [&](std::size_t i) { return parts[i].exact(); }));
    const Column same = Column::of(parts);
    EXPECT_EQ(column.form(), same.form());
    EXPECT_EQ(column.bytes(), same.bytes());
    EXPECT_EQ(column.largest_numerator(), same.largest_numerator());
    expect_parts(column, parts, "run " + std::to_string(run));
    if (::testing::Test::HasFailure()) return;
  }
}

TEST(Column, ArraysBelongToTheirForm) {
  const std::vector<double> values{0.5, -1e300};
  const Column doubles = Column::doubles(values);
  EXPECT_EQ(doubles.form(), PartForm::doubles);
  EXPECT_EQ(doubles.doubles()[1], -1e300);
  EXPECT_EQ(doubles.integers(), nullptr);
  const std::vector<Fraction32> parts{{1, 3}, {-2, 5}};
  const Column fractions = Column::fractions(parts);
  EXPECT_EQ(fractions.fractions()[1].nu, -2);
  EXPECT_EQ(fractions.largest_numerator(), 2U);
  EXPECT_EQ(Column::zero(3).size(), 3U);
  EXPECT_EQ(Column::floating_zero(2).form(), PartForm::floating_zero);
}

TEST(Column, LargestNumeratorIsNeverTooSmall) {
  const std::vector<ratyp> parts{INT32_MIN, 3};
  Column column = Column::of(parts);
  EXPECT_EQ(column.largest_numerator(), 2147483648U);
  column = Column::of(std::vector<ratyp>{1, 2});
  column.reserve_one();
  column.insert(0, -9);
  EXPECT_EQ(column.largest_numerator(), 9U);
  column.erase(0);
  EXPECT_GE(column.largest_numerator(), 2U);
}

TEST(Column, TakesTellsWhatTheFormHolds) {
  const Column halves = Column::integers(std::vector<std::int32_t>{1, 3}, 2);
  EXPECT_TRUE(halves.takes(column_half));
  EXPECT_TRUE(halves.takes(1073741823));
  EXPECT_FALSE(halves.takes(1073741824));
  EXPECT_FALSE(halves.takes(ratyp(1, 3)));
  EXPECT_FALSE(halves.takes(column_double));
  EXPECT_TRUE(Column::integers(std::vector<std::int32_t>{1}).takes(INT32_MIN));
  const Column zeros = Column::of(std::vector<ratyp>{0, ratyp::floating(0.0)});
  EXPECT_TRUE(zeros.takes(0));
  EXPECT_TRUE(zeros.takes(ratyp::floating(0.0)));
  EXPECT_FALSE(zeros.takes(1));
  EXPECT_FALSE(zeros.takes(column_double));
  const Column mixed_integers = Column::of(std::vector<ratyp>{3, column_double});
  EXPECT_TRUE(mixed_integers.takes(INT32_MIN));
  EXPECT_TRUE(mixed_integers.takes(column_double));
  EXPECT_FALSE(mixed_integers.takes(column_half));
  EXPECT_TRUE(Column::of(std::vector<ratyp>{column_half, column_double}).takes(ratyp(1, 3)));
  EXPECT_FALSE(Column::zero(1).takes(ratyp::floating(0.0)));
  EXPECT_FALSE(Column::floating_zero(1).takes(0));
  EXPECT_TRUE(Column::floating_zero(1).takes(ratyp::floating(-0.0)));
}

ratyp random_part(std::mt19937& engine) {
  switch (engine() % 8) {
    case 0:
      return ratyp::floating(static_cast<double>(engine() % 5) / 4);
    case 1:
      return {static_cast<std::int32_t>(engine()), static_cast<std::int32_t>(engine() % 1000 + 1)};
    case 2:
      return {static_cast<std::int32_t>(engine() % 9), static_cast<std::int32_t>(engine() % 6 + 1)};
    case 3:
      return static_cast<std::int32_t>(engine());
    default:
      return static_cast<std::int32_t>(engine() % 3) - 1;
  }
}

/// Parts of one kind: zeros of both states, integers and doubles, or everything.
ratyp random_part_of_kind(std::mt19937& engine, int kind) {
  const auto number = static_cast<std::int32_t>(engine());
  if (engine() % 2 == 0) return ratyp::floating(kind == 0 ? 0.0 : 0.5 * number);
  return kind == 2 ? ratyp(number, static_cast<std::int32_t>(engine() % 9 + 1))
                   : ratyp(kind == 0 ? 0 : number);
}

TEST(Column, LongMixedColumnsKeepEveryPartThroughEdits) {
  std::mt19937 engine(6);
  for (int run = 0; run < 60; ++run) {
    std::vector<ratyp> parts(engine() % 300 + 2);
    for (ratyp& part : parts) part = random_part_of_kind(engine, run % 3);
    parts.front() = 0;
    parts.back() = ratyp::floating(0.0);
    Column column = Column::of(parts);
    for (int i = 0; i < 40; ++i) {
      const std::size_t at = engine() % parts.size();
      const ratyp part = random_part_of_kind(engine, run % 3);
      column.make_fit(part);
      column.reserve_one();
      column.insert(at, part);
      parts.insert(parts.begin() + static_cast<std::ptrdiff_t>(at), part);
      const std::size_t first = engine() % parts.size();
      const std::size_t count = std::min<std::size_t>(engine() % 4, parts.size() - first);
      column.erase(first, count);
      const auto begin = parts.begin() + static_cast<std::ptrdiff_t>(first);
      parts.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
      if (parts.empty()) break;
      expect_parts(column, parts, "run " + std::to_string(run));
      if (::testing::Test::HasFailure()) return;
    }
  }
}

TEST(Column, RandomEditsKeepEveryPart) {
  std::mt19937 engine(5);
  for (int run = 0; run < 200; ++run) {
    Column column;
    std::vector<ratyp> parts;
    for (int i = 0; i < 60; ++i) {
      // Runs of one kind first, so that every form is edited.
      const ratyp part = i < run % 60 ? ratyp(static_cast<std::int32_t>(engine() % 5)) : random_part(engine);
      const std::size_t at = parts.empty() ? 0 : engine() % parts.size();
      const auto place = parts.begin() + static_cast<std::ptrdiff_t>(at);
      if (parts.empty() || engine() % 3 != 0) {
        column.make_fit(part);
        column.reserve_one();
        column.insert(at, part);
        parts.insert(place, part);
      } else if (engine() % 2 == 0) {
        column.make_fit(part);
        column.set(at, part);
        *place = part;
      } else {
        column.erase(at);
        parts.erase(place);
      }
    }
    expect_parts(column, parts, "run " + std::to_string(run));
    if (::testing::Test::HasFailure()) return;
  }
}

TEST(Column, PickedAndKeptPartsAreTheSame) {
  const std::vector<std::vector<ratyp>> columns = {
      {0, 0, 0, 0},
      {1, ratyp(1, 2), 3, 4},
      {column_double, 1, 2, 3},
      {ratyp(1, 3), column_double, 2, ratyp::floating(0.0)},
      {0, ratyp::floating(0.0), 0, ratyp::floating(0.0)},
      {column_double, column_double, ratyp::floating(2.0), column_double},
      {ratyp(1, 2147483629), ratyp(1, 3), 5, 6},
      {ratyp::floating(0.0), ratyp::floating(0.0), ratyp::floating(0.0), ratyp::floating(0.0)}};
  const std::vector<std::uint32_t> indices{1, 3};
  for (const auto& parts : columns) {
    Column column = Column::of(parts);
    const std::vector<ratyp> picked{parts[1], parts[3]};
    const BitList which = BitList::made(4, [](std::size_t i) { return i % 2 == 1; });
    expect_parts(column.picked(which), picked, "picked");
    EXPECT_EQ(column.picked(which).form(), column.form());
    column.keep(indices);
    column.shrink();
    expect_parts(column, picked, "kept");
  }
}

TEST(Column, WithoutMemoryMixedPartsAreAsTheyWere) {
  std::vector<ratyp> parts(64, 1);
  parts[5] = column_double;
  const std::int64_t failures = fail_each_allocation(
      Column::of(parts),
      [](Column& column) {
        column.reserve_one();
        column.insert(1, column_double);
      },
      [&](const Column& column) { expect_parts(column, parts, "as it was"); });
  EXPECT_GE(failures, 2);
}

TEST(Column, WithoutMemoryItIsAsItWas) {
  const std::vector<ratyp> parts{1, ratyp(1, 2), 3};
  const std::int64_t failures = fail_each_allocation(
      Column::of(parts),
      [](Column& column) {
        column.make_fit(column_double);
        column.reserve_one();
        column.insert(1, column_double);
      },
      [&](const Column& column) { expect_parts(column, parts, "as it was"); });
  EXPECT_GE(failures, 2);
}

}  // namespace
}  // namespace kov
