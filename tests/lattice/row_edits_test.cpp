#include "lattice/row_edits.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/failing_allocation.h"
#include "support/points_text.h"
#include "support/recording_messages.h"
#include "text/integers.h"

namespace kov {
namespace {

/// One point in each row, whose quantity tells the row it began in.
Lmap with_rows(const std::vector<std::int32_t>& rows) {
  Lmap lmap;
  for (const std::int32_t n : rows) lmap.set(Lk::at(0, n), cotyp(n, 1, 1, 1));
  return lmap;
}

/// "5<8 6" for row 5 with what began in row 8 and row 6 with its own.
std::string rows_text(const Lmap& lmap) {
  std::string text;
  for (auto point = lmap.begin(); point != lmap.end(); ++point) {
    const std::int32_t from = point.quantity().re.nu();
    if (!text.empty()) text += " ";
    text += int_text(point.key().n());
    if (from != point.key().n()) text.append("<").append(int_text(from));
  }
  return text;
}

const std::vector<std::int32_t> ten = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
const std::vector<std::int32_t> gaps = {0, 1, 5, 9};
const std::vector<std::int32_t> ends = {lowest_int, lowest_int + 1, 0, highest_int - 1, highest_int};
const std::vector<std::int32_t> bottom = {lowest_int};
const char* const ten_text = "0 1 2 3 4 5 6 7 8 9";
const char* const gaps_text = "0 1 5 9";
const char* const ends_text = "-2147483648 -2147483647 0 2147483646 2147483647";

struct EditCase {
  const char* name;
  const std::vector<std::int32_t>& rows;
  std::vector<std::int32_t> inputs;
  std::string after;
};

using Edit = void (*)(Lmap& lmap, const std::vector<std::int32_t>& inputs);

void expect_edits(const std::vector<EditCase>& cases, Edit edit) {
  for (const EditCase& row : cases) {
    Lmap lmap = with_rows(row.rows);
    edit(lmap, row.inputs);
    EXPECT_EQ(rows_text(lmap), row.after) << row.name;
    Lmap empty;
    edit(empty, row.inputs);
    EXPECT_TRUE(empty.empty()) << row.name;
  }
}

// clang-format off
TEST(MoveAll, MovesEveryRow) {
  expect_edits({
      {"forwards",                gaps, {3},           "3<0 4<1 8<5 12<9"},
      {"backwards",               gaps, {-1},          "-1<0 0<1 4<5 8<9"},
      {"nowhere",                 gaps, {0},           gaps_text},
      {"past the highest step",   ends, {1},           "-2147483648<2147483647 -2147483647<-2147483648 "
                                                       "-2147483646<-2147483647 1<0 2147483647<2147483646"},
      {"by the lowest step",      gaps, {lowest_int},  "-2147483648<0 -2147483647<1 -2147483643<5 -2147483639<9"},
  }, [](Lmap& lmap, const auto& in) { MoveAll(lmap, in[0]); });
}

TEST(MovePart, MovesOverTheDestinationAndLeavesTheOthers) {
  expect_edits({
      {"to free rows",            ten,  {2, 3, 20},    "0 1 4 5 6 7 8 9 20<2 21<3"},
      {"over other rows",         ten,  {0, 1, 8},     "2 3 4 5 6 7 8<0 9<1"},
      {"overlap forwards",        ten,  {2, 5, 4},     "0 1 4<2 5<3 6<4 7<5 8 9"},
      {"overlap backwards",       ten,  {4, 7, 2},     "0 1 2<4 3<5 4<6 5<7 8 9"},
      {"onto itself",             ten,  {2, 5, 2},     ten_text},
      {"one row",                 ten,  {3, 3, 4},     "0 1 2 4<3 5 6 7 8 9"},
      {"missing rows erase too",  gaps, {2, 4, 0},     "5 9"},
      {"missing rows move too",   gaps, {0, 4, 5},     "5<0 6<1"},
      {"a above b",               ten,  {5, 4, 0},     ten_text},
      {"past the highest step",   ends, {0, 1, highest_int}, "-2147483647 2147483646 2147483647<0"},
      {"from the highest step",   ends, {highest_int, highest_int, 0}, "-2147483648 -2147483647 0<2147483647 2147483646"},
      {"all steps, by one",       ends, {lowest_int, highest_int, lowest_int + 1},
                                  "-2147483648<2147483647 -2147483647<-2147483648 -2147483646<-2147483647 1<0 2147483647<2147483646"},
  }, [](Lmap& lmap, const auto& in) { MovePart(lmap, in[0], in[1], in[2]); });
}

TEST(CopyPart, ErasesTheDestinationButForTheSource) {
  expect_edits({
      {"to free rows",            gaps, {0, 1, 20},    "0 1 5 9 20<0 21<1"},
      {"over other rows",         ten,  {0, 1, 8},     "0 1 2 3 4 5 6 7 8<0 9<1"},
      {"overlap forwards",        ten,  {2, 5, 4},     "0 1 2 3 4 5 6<4 7<5 8 9"},
      {"overlap backwards",       ten,  {4, 7, 2},     "0 1 2<4 3<5 4 5 6 7 8 9"},
      {"onto itself",             ten,  {2, 5, 2},     ten_text},
      {"missing rows erase too",  gaps, {2, 4, 0},     "5 9"},
      {"gaps of the source stay", gaps, {1, 5, 2},     "0 1 5 6<5 9"},
      {"a above b",               ten,  {5, 4, 0},     ten_text},
      {"past the highest step",   ends, {0, 2, highest_int}, "0 2147483646 2147483647<0"},
      {"a copy wraps",            ten,  {8, 9, highest_int}, "-2147483648<9 0 1 2 3 4 5 6 7 8 9 2147483647<8"},
      {"all steps",               ends, {lowest_int, highest_int, 0}, ends_text},
  }, [](Lmap& lmap, const auto& in) { CopyPart(lmap, in[0], in[1], in[2]); });
}

TEST(DeleteRows, ErasesBothBoundsAndBetween) {
  expect_edits({
      {"some",                    ten,  {2, 7},        "0 1 8 9"},
      {"one",                     ten,  {9, 9},        "0 1 2 3 4 5 6 7 8"},
      {"all n>0",                 ten,  {1, highest_int}, "0"},
      {"Choose First with a = 4", ten,  {4, highest_int}, "0 1 2 3"},
      {"all",                     ends, {lowest_int, highest_int}, ""},
      {"a above b",               ten,  {7, 2},        ten_text},
  }, [](Lmap& lmap, const auto& in) { DeleteRows(lmap, in[0], in[1]); });
}

TEST(DeleteAllButLast, CountsRowsBackFromTheLast) {
  expect_edits({
      {"none kept",               ten,  {0},           ""},
      {"one kept",                ten,  {1},           "9"},
      {"some kept",               ten,  {4},           "6 7 8 9"},
      {"all kept",                ten,  {10},          ten_text},
      {"more than there are",     ten,  {11},          ten_text},
      {"most",                    ten,  {highest_int}, ten_text},
      {"missing rows count",      gaps, {5},           "5 9"},
      {"below all steps",         bottom, {1}, "-2147483648"},
      {"far below all steps",     bottom, {highest_int}, "-2147483648"},
      {"none of the lowest row",  bottom, {0}, ""},
      {"both ends",               ends, {highest_int}, "2147483646 2147483647"},
      {"less than none",          ten,  {-1},          ""},
      {"far less than none",      ends, {lowest_int},  ""},
  }, [](Lmap& lmap, const auto& in) { DeleteAllButLast(lmap, in[0]); });
}

TEST(ChooseLast, MovesTheLastRowsAndErasesTheRest) {
  expect_edits({
      {"to row 5",                ten,  {2, 5},        "5<8 6<9"},
      {"before inclusive 0",      ten,  {3, -2},       "-2<7 -1<8 0<9"},
      {"from 0 on",               ten,  {3, 0},        "0<7 1<8 2<9"},
      {"missing rows count",      gaps, {5, 0},        "0<5 4<9"},
      {"more than there are",     ten,  {12, 0},       "2<0 3<1 4<2 5<3 6<4 7<5 8<6 9<7 10<8 11<9"},
      {"none",                    ten,  {0, 5},        ten_text},
      {"less than none",          ten,  {-3, 5},       ten_text},
      {"to the highest step",     ten,  {2, highest_int}, "-2147483648<9 2147483647<8"},
      {"most rows",               ends, {highest_int, 1}, "2147483646 2147483647"},
      {"below all steps",         bottom, {3, 0}, "2<-2147483648"},
  }, [](Lmap& lmap, const auto& in) { ChooseLast(lmap, in[0], in[1]); });
}

TEST(ChoosePart, MovesThePartAndErasesTheRest) {
  expect_edits({
      {"to row 0",                ten,  {3, 5, 0},     "0<3 1<4 2<5"},
      {"in its place",            ten,  {3, 5, 3},     "3 4 5"},
      {"a part without points",   gaps, {2, 4, 0},     ""},
      {"missing rows count",      gaps, {4, 9, 0},     "1<5 5<9"},
      {"a above b",               ten,  {5, 4, 0},     ten_text},
      {"all steps",               ends, {lowest_int, highest_int, lowest_int}, ends_text},
      {"past the highest step",   ten,  {8, 9, highest_int}, "-2147483648<9 2147483647<8"},
      {"the lowest step alone",   ends, {lowest_int, lowest_int, 7}, "7<-2147483648"},
      {"the highest step alone",  ends, {highest_int, highest_int, 7}, "7<2147483647"},
  }, [](Lmap& lmap, const auto& in) { ChoosePart(lmap, in[0], in[1], in[2]); });
}
// clang-format on

TEST(DeleteRows, TheLastRowTwice) {
  Lmap lmap = with_rows(ten);
  for (int i = 0; i < 2; ++i) DeleteRows(lmap, lmap.nlast(), lmap.nlast());
  EXPECT_EQ(rows_text(lmap), "0 1 2 3 4 5 6 7");
}

TEST(RowEdits, TakeTheWholeRowOverAllLatticesAndCoordinates) {
  Lmap lmap;
  for (const Lk& key : {Lk::at(-4, 1, -9), Lk::at(0, 1), Lk::at(7, 1, 9), Lk::at(0, 2)}) lmap.set(key, 1);
  MovePart(lmap, 1, 1, 5);
  EXPECT_EQ(points_text(lmap), "0 2: 1\n-4 5 -9: 1\n0 5: 1\n7 5 9: 1\n");
}

struct BoundsCase {
  std::int32_t a;
  std::int32_t b;
  std::int32_t points_before;
  std::int32_t points_within;
  std::vector<std::string> messages;
};

TEST(GetLowUpBound2, ReportsBoundsInTheWrongOrder) {
  const Lmap lmap = with_rows(gaps);
  // clang-format off
  const BoundsCase cases[] = {
      {1,           5,           1, 2, {}},
      {2,           4,           2, 0, {}},
      {lowest_int,  highest_int, 0, 4, {}},
      {5,           3,           2, 0, {"GetLowUpBound_2: a=5 3=b\nupbound set to lobound"}},
      {highest_int, lowest_int,  4, 0, {"GetLowUpBound_2: a=2147483647 -2147483648=b\nupbound set to lobound"}},
  };
  // clang-format on
  const auto distance = [](Lmap::Cursor from, Lmap::Cursor to) {
    std::int32_t count = 0;
    for (; from != to; ++from) ++count;
    return count;
  };
  for (const BoundsCase& row : cases) {
    RecordingMessages messages;
    const RowBounds bounds = GetLowUpBound_2(lmap, row.a, row.b, messages);
    EXPECT_EQ(distance(lmap.begin(), bounds.lower), row.points_before) << row.a;
    EXPECT_EQ(distance(bounds.lower, bounds.upper), row.points_within) << row.a;
    EXPECT_EQ(messages.texts(), row.messages);
    EXPECT_EQ(messages.beeps, static_cast<int>(row.messages.size()));
  }
}

/// Boxes that keep k1 = 0 in every row and k1 = 2 in row 1.
std::vector<KeyBox> kept_boxes() {
  KeyBox line{Lk::at(0, lowest_int), Lk::at(0, highest_int)};
  KeyBox point{Lk::at(0, 1, 2), Lk::at(0, 1, 2)};
  return {line, point};
}

/// k1 = 0, 1, 2 in rows 0, 1 and 2.
Lmap block() {
  Lmap lmap;
  for (std::int32_t n = 0; n <= 2; ++n) {
    for (std::int32_t k1 = 0; k1 <= 2; ++k1) lmap.set(Lk::at(0, n, k1), 1);
  }
  return lmap;
}

std::string keys_text(const Lmap& lmap) {
  std::string text;
  for (auto point = lmap.begin(); point != lmap.end(); ++point) {
    text += int_text(point.key().n()) + "," + int_text(point.key().coo[1]) + " ";
  }
  return text;
}

const char* const block_text = "0,0 0,1 0,2 1,0 1,1 1,2 2,0 2,1 2,2 ";

struct OutsideCase {
  const char* name;
  std::int32_t a;
  std::int32_t b;
  const char* after;
  std::vector<std::string> messages;
};

// clang-format off
const OutsideCase outside_cases[] = {
    {"all rows",      lowest_int, highest_int, "0,0 1,0 1,2 2,0 ",                 {}},
    {"the last row",  2,          2,           "0,0 0,1 0,2 1,0 1,1 1,2 2,0 ",     {}},
    {"row 1",         1,          1,           "0,0 0,1 0,2 1,0 1,2 2,0 2,1 2,2 ", {}},
    {"no row",        5,          9,           block_text,                         {}},
    {"wrong order",   2,          1,           block_text,                         {"GetLowUpBound_2: a=2 1=b\nupbound set to lobound"}},
};
// clang-format on

TEST(DeleteRowsOutsideRange, KeepsWhatLiesInAnyBox) {
  for (const OutsideCase& row : outside_cases) {
    Lmap lmap = block();
    RecordingMessages messages;
    DeleteRowsOutsideRange(lmap, row.a, row.b, kept_boxes(), messages);
    EXPECT_EQ(keys_text(lmap), row.after) << row.name;
    EXPECT_EQ(messages.texts(), row.messages) << row.name;
  }
}

TEST(DeleteRowsOutsideRange, WithoutBoxesKeepsNothing) {
  Lmap lmap = block();
  RecordingMessages messages;
  DeleteRowsOutsideRange(lmap, 0, 1, {}, messages);
  EXPECT_EQ(keys_text(lmap), "2,0 2,1 2,2 ");
}

struct ExceptLastCase {
  const char* name;
  std::int32_t a;
  const char* after;
};

// clang-format off
const ExceptLastCase except_last_cases[] = {
    {"no last rows",        0,           "0,0 1,0 1,2 2,0 "},
    {"one",                 1,           "0,0 1,0 1,2 2,0 2,1 2,2 "},
    {"two",                 2,           "0,0 1,0 1,1 1,2 2,0 2,1 2,2 "},
    {"all",                 3,           block_text},
    {"more than there are", 4,           block_text},
    {"most",                highest_int, block_text},
    {"less than none",      -1,          "0,0 1,0 1,2 2,0 "},
    {"least",               lowest_int,  "0,0 1,0 1,2 2,0 "},
};
// clang-format on

TEST(DeleteOutsideExceptLast, SparesTheLastRowsAndNeverReports) {
  for (const ExceptLastCase& row : except_last_cases) {
    for (const std::int32_t shift : {0, lowest_int, highest_int - 2}) {
      std::vector<KeyBox> boxes = kept_boxes();
      boxes[1].min.coo[0] = boxes[1].max.coo[0] = shift + 1;
      Lmap lmap = block();
      lmap.shift_steps(shift);
      RecordingMessages messages;
      DeleteOutsideExceptLast(lmap, row.a, boxes, messages);
      lmap.shift_steps(wrapping_subtract(0, shift));
      EXPECT_EQ(keys_text(lmap), row.after) << row.name << ", moved by " << shift;
      EXPECT_TRUE(messages.shown.empty());
    }
  }
}

TEST(DeleteOutsideExceptLast, LeavesAnEmptyStore) {
  Lmap lmap;
  RecordingMessages messages;
  DeleteOutsideExceptLast(lmap, 0, kept_boxes(), messages);
  EXPECT_TRUE(lmap.empty());
  EXPECT_TRUE(messages.shown.empty());
}

TEST(CopyPart, LeavesTheStoreWholeWhenMemoryIsExhausted) {
  const auto unchanged = [](const Lmap& lmap) { EXPECT_EQ(rows_text(lmap), ten_text); };
  EXPECT_GE(fail_each_allocation(
                with_rows(ten), [](Lmap& lmap) { CopyPart(lmap, 2, 5, 7); }, unchanged),
            4);
}

TEST(RowEdits, ButForCopyPartNeedNoMemory) {
  const auto edits = [](Lmap& lmap) {
    RecordingMessages messages;
    const KeyBox line{Lk::at(0, lowest_int), Lk::at(0, highest_int)};
    MoveAll(lmap, 3);
    MovePart(lmap, 2, 5, 7);
    ChoosePart(lmap, 0, 100, 50);
    ChooseLast(lmap, 6, 0);
    DeleteRowsOutsideRange(lmap, 0, 2, {&line, 1}, messages);
    DeleteOutsideExceptLast(lmap, 2, {}, messages);
    DeleteAllButLast(lmap, 1);
  };
  const auto never = [](const Lmap&) { ADD_FAILURE() << "an allocation was asked for"; };
  EXPECT_EQ(fail_each_allocation(with_rows(ten), edits, never), 0);
}

}  // namespace
}  // namespace kov
