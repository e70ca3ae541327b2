#include "lattice/lk.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/recording_messages.h"
#include "text/integers.h"

namespace kov {
namespace {

Lk with(int position, std::int32_t value, Lk key = {}) {
  key.coo[static_cast<std::size_t>(position)] = value;
  return key;
}

TEST(Lk, IsAllZerosAtFirst) { EXPECT_EQ(Lk{}, Lk::filled(0)); }

TEST(Lk, StoresTheLatticeIndexLast) {
  const Lk key = Lk::at(3, 5, 7);
  EXPECT_EQ(key.coo[31], 3);
  EXPECT_EQ(key.coo[0], 5);
  EXPECT_EQ(key.coo[1], 7);
  EXPECT_EQ(key.l(), 3);
  EXPECT_EQ(key.n(), 5);
}

struct OrderCase {
  const char* name;
  Lk less;
  Lk greater;
};

// clang-format off
const OrderCase order_cases[] = {
    {"differ only in l",                          Lk::at(1, 5, 7),              Lk::at(2, 5, 7)},
    {"larger n wins over smaller l",              Lk::at(9, 4),                 Lk::at(0, 5)},
    {"larger k1 wins over smaller l",             Lk::at(9, 4, 1),              Lk::at(0, 4, 2)},
    {"negative n before positive",                Lk::at(0, -1),                Lk::at(0, 1)},
    {"negative k1 before positive",               Lk::at(0, 0, -1),             Lk::at(0, 0, 1)},
    {"negative l before positive",                Lk::at(-1, 0),                Lk::at(1, 0)},
    {"n before k1",                               Lk::at(0, 0, 1),              Lk::at(0, 1, 0)},
    {"k30 before l",                              with(31, 9, with(30, 1)),     with(30, 2)},
    {"k29 before k30",                            with(30, 9),                  with(29, 1)},
    {"the ends of the 32-bit range",              Lk::at(0, lowest_int),        Lk::at(0, highest_int)},
    {"the ends of the 32-bit range, last",        Lk::at(lowest_int, 0),        Lk::at(highest_int, 0)},
};
// clang-format on

TEST(Lk1LessLk2, ComparesTheFirstDifferenceAndTheLatticeIndexLast) {
  for (const OrderCase& row : order_cases) {
    EXPECT_TRUE(Lk1LessLk2(row.less, row.greater)) << row.name;
    EXPECT_FALSE(Lk1LessLk2(row.greater, row.less)) << row.name;
    EXPECT_FALSE(Lk1LessLk2(row.less, row.less)) << row.name;
    EXPECT_TRUE(LkOrder{}(row.less, row.greater)) << row.name;
  }
}

TEST(Lk1LessLk2, LooksAtEveryPosition) {
  for (int position = 0; position < MaxDimCount; ++position) {
    EXPECT_TRUE(Lk1LessLk2(with(position, -1), Lk{})) << position;
    EXPECT_TRUE(Lk1LessLk2(Lk{}, with(position, 1))) << position;
  }
}

struct SumCase {
  std::int32_t a;
  std::int32_t b;
  std::int32_t sum;
};

const SumCase sum_cases[] = {
    {1, 2, 3},
    {highest_int, 1, lowest_int},
    {lowest_int, -1, highest_int},
    {lowest_int, lowest_int, 0},
    {highest_int, highest_int, -2},
    {lowest_int, highest_int, -1},
};

TEST(WrappingAdd, GoesRoundAtBothEnds) {
  for (const SumCase& row : sum_cases) {
    EXPECT_EQ(wrapping_add(row.a, row.b), row.sum) << row.a << " + " << row.b;
    EXPECT_EQ(wrapping_subtract(row.sum, row.b), row.a) << row.sum << " - " << row.b;
  }
}

TEST(WrappingAdd, TakesEveryPositionOfAKey) {
  for (int position = 0; position < MaxDimCount; ++position) {
    EXPECT_EQ(wrapping_add(with(position, highest_int), with(position, 2)), with(position, lowest_int + 1));
  }
}

struct MappingCase {
  int argument;
  int result;
  std::vector<std::string> messages;
};

// clang-format off
const MappingCase sl_irow_cases[] = {
    {31,          0,           {}},
    {0,           1,           {}},
    {1,           2,           {}},
    {30,          31,          {}},
    {32,          33,          {"sl_irow:icoo=32"}},
    {-1,          0,           {"sl_irow:icoo=-1"}},
    {highest_int, lowest_int,  {"sl_irow:icoo=2147483647"}},
    {lowest_int,  lowest_int + 1, {"sl_irow:icoo=-2147483648"}},
};
const MappingCase sl_icoo_cases[] = {
    {0,           31,          {}},
    {1,           0,           {}},
    {31,          30,          {}},
    {32,          31,          {}},
    {33,          32,          {"sl_icoo:icoo=32"}},
    {-1,          -2,          {"sl_icoo:icoo=-2"}},
    {lowest_int,  highest_int, {"sl_icoo:icoo=2147483647"}},
};
// clang-format on

TEST(ListedRows, SlIrowChecksItsArgument) {
  for (const MappingCase& row : sl_irow_cases) {
    RecordingMessages messages;
    EXPECT_EQ(sl_irow(row.argument, messages), row.result) << row.argument;
    EXPECT_EQ(messages.texts(), row.messages) << row.argument;
    EXPECT_EQ(messages.beeps, static_cast<int>(row.messages.size()));
  }
}

TEST(ListedRows, SlIcooChecksItsResult) {
  for (const MappingCase& row : sl_icoo_cases) {
    RecordingMessages messages;
    EXPECT_EQ(sl_icoo(row.argument, messages), row.result) << row.argument;
    EXPECT_EQ(messages.texts(), row.messages) << row.argument;
  }
}

TEST(ListedRows, OutOfRangeIsAnError) {
  RecordingMessages messages;
  messages.set_wl(Messages::lowest_level);
  sl_irow(32, messages);
  sl_icoo(33, messages);
  ASSERT_EQ(messages.shown.size(), 2U);
  EXPECT_EQ(messages.shown[0].kind, MessageKind::error);
  EXPECT_EQ(messages.shown[1].kind, MessageKind::error);
}

TEST(ListedRows, ListLFirstThenNThenTheOthers) {
  RecordingMessages messages;
  for (int row = 0; row < MaxDimCount; ++row) {
    const int position = listed_positions[static_cast<std::size_t>(row)];
    EXPECT_EQ(position, sl_icoo(row, messages));
    EXPECT_EQ(row, sl_irow(position, messages));
  }
  EXPECT_TRUE(messages.shown.empty());
}

TEST(Names, OfCoordinatesAndOffsets) {
  struct NameCase {
    int position;
    const char* coordinate;
    const char* offset;
  };
  const NameCase cases[] = {
      {31, "l", "l"}, {0, "n", "dn"}, {1, "k1", "dk1"}, {9, "k9", "dk9"}, {30, "k30", "dk30"}};
  for (const NameCase& row : cases) {
    EXPECT_EQ(coordinate_name(row.position), row.coordinate);
    EXPECT_EQ(offset_name(row.position), row.offset);
  }
}

}  // namespace
}  // namespace kov
