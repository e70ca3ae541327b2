#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "datafile/point_line.h"
#include "file_desk.h"
#include "lattice/lmap.h"
#include "support/points_text.h"
#include "text/integers.h"
#include "text/tokens.h"

namespace kov {
namespace {

/// What a point's line says, read field by field; the message, or the point in the store.
std::string read_plainly(const std::string& line, Lmap& store) {
  Tokens tokens(line);
  tokens.next();
  const PointFields fields = scan_point_fields(tokens.rest());
  if (fields.count != point_field_count) {
    return "entry_lattice: sscanf = " + int_text(fields.count) + " instead of 33";
  }
  cotyp quantity;
  if (!from_text(fields.quantity, quantity)) return "entry_lattice: Error in cotyp quantity";
  if (!Tokens(fields.rest).at_end()) return "entry_lattice: end of line expected";
  if (is_zero(quantity)) return "entry_lattice: NullQuantity input is redundant";
  if (store.contains(fields.key)) return "entry_lattice: coordinate already occupied";
  store.set(fields.key, quantity);
  return "";
}

/// Reads the lines as a file, and one by one without any haste, and compares the points and the questions.
void expect_read_plainly(const std::vector<std::string>& lines) {
  std::string text;
  std::vector<std::string> reports;
  Lmap store;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    text += lines[i] + (i % 3 == 0 ? "\r\n" : "\n");
    const std::string message = read_plainly(lines[i], store);
    if (message.empty()) continue;
    reports.push_back("beep");
    reports.push_back(
        "question: Error reading line " + int_text(static_cast<std::int64_t>(i + 1)) + " of read.aa1:\n  " +
        message + "\n  (Abort of reading will cause default init.)\n  \n  Do you want to proceed? -> yes");
  }
  FileDesk desk;
  desk.document.cph.setkmi_1("File_IO_PointCountPerDisplay", 1'000'000);
  desk.scripted.set_yes(true);
  ASSERT_EQ(desk.read_text(text), ReadOutcome::completed);
  ASSERT_EQ(desk.reports, reports);
  ASSERT_EQ(points_text(desk.document.lmap), points_text(store));
  ASSERT_EQ(desk.document.lmap.count(), store.count());
}

std::string any_quantity(std::mt19937& random) {
  const std::vector<std::string> quantities = {
      "1",           "-7",         "1/2",  "2/4",     "3i",
      "1/2+3/4i",    "-1-1i",      "0.25", "1.5E-5i", "1E20",
      "2147483647",  "2147483648", "i",    "0",       "0.0-0i",
      "1/0",         "nan",        "+5",   ".5",      "1e400",
      "1 2",         "-0.0",       "5.",   "1E-400",  "0.3333333333333333333333",
      "-2147483648", "1/-2",       "7 "};
  // Most lines are such as are written.
  return quantities[random() % (random() % 4 == 0 ? quantities.size() : 12)];
}

std::string any_line(std::mt19937& random, std::int32_t n, std::int32_t k1) {
  std::string line = point_line(static_cast<std::int32_t>(random() % 2), n, k1, any_quantity(random));
  switch (random() % 40) {
    case 0:
      line.insert(3 + random() % (line.size() - 3), " ");
      break;
    case 1:
      line.insert(3 + random() % (line.size() - 3), "\t");
      break;
    case 2:
      line.erase(4 + random() % (line.size() - 4), 1);
      break;
    case 3:
      line[4 + random() % (line.size() - 4)] = "0918-+/ix"[random() % 9];
      break;
    case 4:
      line.insert(4, random() % 2 == 0 ? "123456" : "+");
      break;
    default:
      break;
  }
  return line;
}

TEST(ReadPoints, OfHostileFilesGivesThePointsAndMessagesOfEachLineAlone) {
  std::mt19937 random(99);
  for (int round = 0; round < 300; ++round) {
    std::vector<std::string> lines;
    const int rows = 1 + static_cast<int>(random() % 5);
    const bool ordered = random() % 2 == 0;
    for (int i = 0; i < 200; ++i) {
      const int place = ordered && random() % 20 != 0 ? i : static_cast<int>(random() % 200);
      lines.push_back(any_line(random, place * rows / 200, place % 50 - 25));
    }
    ASSERT_NO_FATAL_FAILURE(expect_read_plainly(lines)) << round;
  }
}

TEST(ReadPoints, InAnyOrderGivesTheSameStore) {
  std::vector<std::string> lines;
  for (std::int32_t i = 0; i < 12'000; ++i) lines.push_back(point_line(i % 2, i / 6000, i / 2 % 3000, "1/3"));
  std::mt19937 random(5);
  expect_read_plainly(lines);
  std::swap(lines[5000], lines[9]);
  expect_read_plainly(lines);
  std::reverse(lines.begin(), lines.end());
  expect_read_plainly(lines);
  std::shuffle(lines.begin(), lines.end(), random);
  expect_read_plainly(lines);
}

TEST(WrittenPoint, IsWhatTheFieldsGiveOrNoneAtAll) {
  std::mt19937 random(3);
  int taken = 0;
  for (int round = 0; round < 50'000; ++round) {
    const std::string line = any_line(random, static_cast<std::int32_t>(random()) >> (random() % 32), 3);
    const std::string rest = line.substr(3);
    Lk key = Lk::filled(77);
    cotyp quantity;
    if (!scan_written_point(rest, key, quantity)) continue;
    ++taken;
    Lmap quick;
    quick.set(key, quantity);
    Lmap plain;
    ASSERT_EQ(read_plainly(line, plain), "") << line;
    ASSERT_EQ(points_text(quick), points_text(plain)) << line;
  }
  EXPECT_GT(taken, 20'000);
}

}  // namespace
}  // namespace kov
