#include "lattice/lmap.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "keep_points.h"
#include "support/failing_allocation.h"
#include "support/points_text.h"
#include "text/integers.h"

namespace kov {
namespace {

const cotyp half(1, 2, 0, 1);
const cotyp minus_half(-1, 2, 0, 1);

/// One point in each of the given rows, with the row's number (or 99 for row 0) as its quantity.
Lmap with_rows(std::initializer_list<std::int32_t> rows) {
  Lmap lmap;
  for (const std::int32_t n : rows) lmap.set(Lk::at(0, n), n == 0 ? 99 : n);
  return lmap;
}

TEST(Lmap, IsEmptyAtFirst) {
  const Lmap lmap;
  EXPECT_TRUE(lmap.empty());
  EXPECT_EQ(lmap.count(), 0U);
  EXPECT_EQ(lmap.estimated_bytes(), 0U);
  EXPECT_EQ(lmap.nfirst(), 0);
  EXPECT_EQ(lmap.steps(), (StepSpan{true, 0, 0}));
  EXPECT_EQ(lmap.begin(), lmap.end());
}

TEST(Lmap, KnowsItsFirstAndLastStep) {
  const Lmap one_row = with_rows({5});
  EXPECT_EQ(one_row.nfirst(), 5);
  EXPECT_EQ(one_row.nlast(), 5);
  EXPECT_EQ(with_rows({3, -7, 0}).steps(), (StepSpan{false, -7, 3}));
  EXPECT_EQ(with_rows({highest_int, lowest_int}).steps(), (StepSpan{false, lowest_int, highest_int}));
}

TEST(Lmap, CountsAPointAs176Bytes) {
  EXPECT_EQ(sizeof_entry, 176U);
  EXPECT_EQ(with_rows({1, 2, 3}).estimated_bytes(), 528U);
}

// clang-format off
struct WriteCase {
  const char* name;
  cotyp before;  ///< zero: no point
  cotyp written;
  cotyp after_set;
  cotyp after_add;
  cotyp after_insert_new;
};

const WriteCase write_cases[] = {
    {"absent",                      0,    half,                   half,                half,                    half},
    {"absent, zero",                0,    0,                      0,                   0,                       0},
    {"absent, floating zero",       0,    cotyp::floating(0, 0),  0,                   0,                       0},
    {"present",                     1,    half,                   half,                cotyp(3, 2, 0, 1),       1},
    {"present, zero",               1,    0,                      0,                   1,                       1},
    {"present, cancelled",          half, minus_half,             minus_half,          0,                       half},
    {"present, cancelled floating", half, cotyp::floating(-0.5, 0), cotyp::floating(-0.5, 0), 0,                half},
    {"imaginary part stays",        cotyp(1, 1, 1, 1), cotyp(-1), -1,                  cotyp(0, 1, 1, 1),       cotyp(1, 1, 1, 1)},
};
// clang-format on

void expect_only(const Lmap& lmap, const Lk& key, const cotyp& q, const char* name) {
  EXPECT_EQ(lmap.get(key), q) << name;
  EXPECT_EQ(lmap.contains(key), !is_zero(q)) << name;
  EXPECT_EQ(lmap.count(), is_zero(q) ? 0U : 1U) << name;
}

TEST(Lmap, NeverStoresAZero) {
  const Lk key = Lk::at(1, 2, 3);
  for (const WriteCase& row : write_cases) {
    Lmap set, added, inserted;
    for (Lmap* lmap : {&set, &added, &inserted}) lmap->set(key, row.before);
    set.set(key, row.written);
    expect_only(set, key, row.after_set, row.name);
    EXPECT_TRUE(added.add(key, row.written) == row.after_add) << row.name;
    expect_only(added, key, row.after_add, row.name);
    EXPECT_EQ(inserted.insert_new(key, row.written), is_zero(row.before) && !is_zero(row.written));
    expect_only(inserted, key, row.after_insert_new, row.name);
  }
}

TEST(Lmap, ErasesAKey) {
  Lmap lmap = with_rows({1, 2});
  EXPECT_TRUE(lmap.erase(Lk::at(0, 1)));
  EXPECT_FALSE(lmap.erase(Lk::at(0, 1)));
  EXPECT_EQ(points_text(lmap), "0 2: 2\n");
}

TEST(Lmap, WalksInKeyOrderBothWays) {
  Lmap lmap;
  for (const Lk& key : {Lk::at(0, 2), Lk::at(5, 1, -1), Lk::at(1, 1), Lk::at(0, 1), Lk::at(0, -1, 9)})
    lmap.set(key, 1);
  EXPECT_EQ(points_text(lmap), "0 -1 9: 1\n5 1 -1: 1\n0 1: 1\n1 1: 1\n0 2: 1\n");
  std::string steps;
  for (auto point = lmap.end(); point != lmap.begin();) steps += int_text((--point).key().n()) + " ";
  EXPECT_EQ(steps, "2 1 1 1 -1 ");
}

TEST(Lmap, ErasesWhileWalking) {
  Lmap lmap = with_rows({1, 2, 3, 4, 5});
  for (auto point = lmap.begin(); point != lmap.end();) {
    if (point.key().n() % 2 != 0) {
      point = lmap.erase(point);
    } else {
      ++point;
    }
  }
  EXPECT_EQ(points_text(lmap), "0 2: 2\n0 4: 4\n");
}

TEST(Lmap, FindsTheBoundsOfARow) {
  const Lmap lmap = [] {
    Lmap points;
    for (const std::int32_t n : {lowest_int, 0, 2, highest_int}) {
      Lk first = Lk::filled(lowest_int);
      Lk last = Lk::filled(highest_int);
      first.coo[0] = last.coo[0] = n;
      points.set(first, 1);
      points.set(last, 1);
    }
    return points;
  }();
  const auto index = [&](Lmap::Cursor cursor) {
    int i = 0;
    for (auto point = lmap.begin(); point != cursor; ++point) ++i;
    return i;
  };
  struct BoundCase {
    std::int32_t n;
    int begin;
    int end;
  };
  const BoundCase cases[] = {{lowest_int, 0, 2}, {-1, 2, 2}, {0, 2, 4},          {1, 4, 4},
                             {2, 4, 6},          {3, 6, 6},  {highest_int, 6, 8}};
  for (const BoundCase& row : cases) {
    EXPECT_EQ(index(lmap.row_begin(row.n)), row.begin) << row.n;
    EXPECT_EQ(index(lmap.row_end(row.n)), row.end) << row.n;
  }
}

struct RowsCase {
  std::int32_t a;
  std::int32_t b;
  const char* within;
  const char* outside;
};

// clang-format off
const RowsCase rows_cases[] = {  // of the rows -1, 0, 1, 4
    {-1,         0,           "0 -1: -1\n0 0: 99\n",                 "0 1: 1\n0 4: 4\n"},
    {1,          1,           "0 1: 1\n",                            "0 -1: -1\n0 0: 99\n0 4: 4\n"},
    {2,          3,           "",                                    "0 -1: -1\n0 0: 99\n0 1: 1\n0 4: 4\n"},
    {1,          0,           "",                                    "0 -1: -1\n0 0: 99\n0 1: 1\n0 4: 4\n"},
    {highest_int, lowest_int, "",                                    "0 -1: -1\n0 0: 99\n0 1: 1\n0 4: 4\n"},
    {lowest_int, highest_int, "0 -1: -1\n0 0: 99\n0 1: 1\n0 4: 4\n", ""},
};
// clang-format on

TEST(Lmap, CountsErasesCopiesAndExtractsRows) {
  for (const RowsCase& row : rows_cases) {
    Lmap erased = with_rows({-1, 0, 1, 4});
    const Lmap whole = erased;
    EXPECT_EQ(points_text(whole.copy_rows(row.a, row.b)), row.within);
    const std::size_t count = whole.count_in_rows(row.a, row.b);
    EXPECT_EQ(count, whole.copy_rows(row.a, row.b).count());
    EXPECT_EQ(erased.erase_rows(row.a, row.b), count);
    EXPECT_EQ(points_text(erased), row.outside);
    Lmap rest = whole;
    EXPECT_EQ(points_text(rest.extract_rows(row.a, row.b)), row.within);
    EXPECT_EQ(points_text(rest), row.outside);
  }
}

TEST(Lmap, MergeKeepsWhatIsThereAndEmptiesTheOther) {
  Lmap lmap = with_rows({1, 3});
  Lmap other;
  for (const std::int32_t n : {0, 1, 2, 3, 4}) other.set(Lk::at(0, n), 7);
  lmap.merge_new(other);
  EXPECT_EQ(points_text(lmap), "0 0: 7\n0 1: 1\n0 2: 7\n0 3: 3\n0 4: 7\n");
  EXPECT_TRUE(other.empty());
  lmap.merge_new(other);
  EXPECT_EQ(lmap.count(), 5U);
  other.merge_new(lmap);
  EXPECT_EQ(other.count(), 5U);
  EXPECT_TRUE(lmap.empty());
}

struct ShiftCase {
  std::int32_t delta;
  const char* after;
};

// clang-format off
const ShiftCase shift_cases[] = {  // of the rows -2147483648, 0, 2147483647
    {0,           "0 -2147483648: -2147483648\n0 0: 99\n0 2147483647: 2147483647\n"},
    {1,           "0 -2147483648: 2147483647\n0 -2147483647: -2147483648\n0 1: 99\n"},
    {-1,          "0 -1: 99\n0 2147483646: 2147483647\n0 2147483647: -2147483648\n"},
    {lowest_int,  "0 -2147483648: 99\n0 -1: 2147483647\n0 0: -2147483648\n"},
    {highest_int, "0 -2: 2147483647\n0 -1: -2147483648\n0 2147483647: 99\n"},
};
// clang-format on

TEST(Lmap, ShiftedStepsWrap) {
  for (const ShiftCase& row : shift_cases) {
    Lmap lmap = with_rows({lowest_int, 0, highest_int});
    lmap.shift_steps(row.delta);
    EXPECT_EQ(points_text(lmap), row.after) << row.delta;
  }
}

TEST(Lmap, TransformErasesWhatBecomesZero) {
  Lmap lmap = with_rows({1, 2, 3});
  lmap.transform([](const cotyp& q) { return q - cotyp(2); });
  EXPECT_EQ(points_text(lmap), "0 1: -1\n0 3: 1\n");
}

TEST(Lmap, TransformThatThrowsLeavesTheStoreAsItWas) {
  Lmap lmap = with_rows({1, 2, 3});
  const auto fail_at_three = [](const cotyp& q) {
    if (q == cotyp(3)) throw std::runtime_error("three");
    return cotyp(7);
  };
  EXPECT_THROW(lmap.transform(fail_at_three), std::runtime_error);
  EXPECT_EQ(points_text(lmap), "0 1: 1\n0 2: 2\n0 3: 3\n");
}

TEST(Lmap, SwapsAndClears) {
  Lmap a = with_rows({1});
  Lmap b = with_rows({2, 3});
  a.swap(b);
  EXPECT_EQ(points_text(a), "0 2: 2\n0 3: 3\n");
  EXPECT_EQ(points_text(b), "0 1: 1\n");
  a.clear();
  EXPECT_TRUE(a.empty());
}

using Operation = void (*)(Lmap&);

/// Gives the number of the allocations asked for.
std::int64_t whole_without_memory(const char* name, const Operation& operation) {
  const Lmap before = with_rows({1, 2, 3});
  const auto unchanged = [&](const Lmap& lmap) { EXPECT_EQ(points_text(lmap), points_text(before)) << name; };
  return fail_each_allocation(before, operation, unchanged);
}

struct OperationCase {
  const char* name;
  Operation operation;
};

// clang-format off
const OperationCase with_memory[] = {
    {"set",            [](Lmap& lmap) { lmap.set(Lk::at(0, 0), 1); }},
    {"set in a row",   [](Lmap& lmap) { lmap.set(Lk::at(1, 2), 1); }},
    {"another form",   [](Lmap& lmap) { lmap.set(Lk::at(0, 2), cotyp::floating(1, 1)); }},
    {"add",            [](Lmap& lmap) { lmap.add(Lk::at(0, 9), 1); }},
    {"insert_new",     [](Lmap& lmap) { lmap.insert_new(Lk::at(0, 9), 1); }},
    {"copy_rows",      [](Lmap& lmap) { lmap.erase_rows(1, lmap.copy_rows(1, 3).nlast()); }},
    {"transform",      [](Lmap& lmap) { lmap.transform(to_float); }},
};

const OperationCase without_memory[] = {
    {"overwrite",  [](Lmap& lmap) { lmap.set(Lk::at(0, 2), 7); }},
    {"erase",      [](Lmap& lmap) { lmap.erase(Lk::at(0, 2)); }},
    {"erase rows", [](Lmap& lmap) { lmap.erase_rows(1, 2); }},
    {"keep some",  [](Lmap& lmap) { keep_points(lmap, 1, 3, [](const Lk& key, const cotyp&) { return key.n() != 2; }); }},
    {"shift",      [](Lmap& lmap) { lmap.shift_steps(5); }},
    {"extract and merge", [](Lmap& lmap) {
      Lmap rows = lmap.extract_rows(2, 3);
      lmap.merge_new(rows);
    }},
};
// clang-format on

TEST(Lmap, IsWholeWhenMemoryIsExhausted) {
  for (const auto& [name, operation] : with_memory) {
    EXPECT_GT(whole_without_memory(name, operation), 0) << name;
  }
}

TEST(Lmap, ErasesAndMovesRowsWithoutMemory) {
  for (const auto& [name, operation] : without_memory) {
    EXPECT_EQ(whole_without_memory(name, operation), 0) << name;
  }
}

TEST(Lmap, RowsThatMeetAreMergedBothOrNeither) {
  struct Two {
    Lmap lmap = with_rows({1, 2});
    Lmap other;
  };
  Two before;
  for (const std::int32_t n : {0, 2}) before.other.set(Lk::at(3, n), 7);
  const auto unchanged = [](const Two& two) {
    EXPECT_EQ(points_text(two.lmap), "0 1: 1\n0 2: 2\n");
    EXPECT_EQ(points_text(two.other), "3 0: 7\n3 2: 7\n");
  };
  const auto merge = [](Two& two) { two.lmap.merge_new(two.other); };
  EXPECT_GT(fail_each_allocation(before, merge, unchanged), 2);
  merge(before);
  EXPECT_EQ(points_text(before.lmap), "3 0: 7\n0 1: 1\n0 2: 2\n3 2: 7\n");
  EXPECT_EQ(before.lmap.count(), 4U);
  EXPECT_EQ(before.other.count(), 0U);
}

TEST(Lmap, TransformAsksEveryPointOnceInKeyOrder) {
  Lmap lmap = with_rows({1, 2, 3});
  std::string asked;
  lmap.transform([&](const cotyp& q) {
    asked += to_text(q) + " ";
    return q;
  });
  EXPECT_EQ(asked, "1 2 3 ");
}

}  // namespace
}  // namespace kov
