#include "interact/integer_question.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <vector>

namespace kov {
namespace {

/// Types one text after the other until the dialog takes one, as a person at a window does; cancels when
/// out of texts.
class Typist final : public Questions {
 public:
  explicit Typist(std::deque<std::string> texts) : texts_(std::move(texts)) {}

  InputDialog asked;
  std::size_t texts_left() const { return texts_.size(); }

  bool yes_no(const std::string&) override { return false; }
  bool all_or_ok(const std::string&) override { return false; }
  std::optional<std::string> input(const InputDialog& dialog, const Accept& accept) override {
    asked = dialog;
    while (!texts_.empty()) {
      const std::string text = texts_.front();
      texts_.pop_front();
      if (accept(text)) return text;
    }
    return std::nullopt;
  }
  std::optional<std::filesystem::path> open_file(const std::string&) override { return std::nullopt; }
  std::optional<std::filesystem::path> save_file(const std::string&, const std::filesystem::path&) override {
    return std::nullopt;
  }

 private:
  std::deque<std::string> texts_;
};

TEST(RangeText, NamesTheBoundsThatThereAre) {
  struct Row {
    IntegerBounds bounds;
    char name;
    const char* text;
  };
  const std::vector<Row> rows = {
      {{}, 'i', ""},
      {{lowest_int, 7}, 'i', " [i<=7]"},
      {{-3, highest_int}, 'i', " [-3<=i]"},
      {{0, 4}, 'i', " [0<=i<=4]"},
      {{5, 5}, 'i', " [5<=i<=5]"},
      {{lowest_int + 1, highest_int}, 'i', " [-2147483647<=i]"},
      {{lowest_int, highest_int - 1}, 'i', " [i<=2147483646]"},
      {{lowest_int, lowest_int}, 'i', " [i<=-2147483648]"},
      {{highest_int, highest_int}, 'i', " [2147483647<=i]"},
      {{}, 'a', ""},
      {{lowest_int, 7}, 'a', " [a<=7]"},
      {{-3, highest_int}, 'a', " [-3<=a]"},
      {{0, 4}, 'a', " [0<=a<=4]"},
  };
  for (const Row& row : rows) EXPECT_EQ(range_text(row.bounds, row.name), row.text);
}

TEST(AskInteger, ShowsCaptionPromptRangeAndCurrentValue) {
  Typist typist({"3"});
  EXPECT_EQ(ask_integer(typist, "Page hotkey", "To quickly select active page", -12, {0, 8}), 3);
  EXPECT_EQ(typist.asked.caption, "Page hotkey");
  EXPECT_EQ(typist.asked.prompt, "To quickly select active page\nenter integer i [0<=i<=8]");
  EXPECT_EQ(typist.asked.preset, "-12");
}

TEST(AskInteger, AsksByTheGivenName) {
  Typist typist({"3"});
  ask_integer(typist, "c", "p", 0, {1, highest_int}, 'a');
  EXPECT_EQ(typist.asked.prompt, "p\nenter integer a [1<=a]");
}

TEST(AskInteger, WithoutBoundsShowsNoRange) {
  Typist typist({"3"});
  ask_integer(typist, "c", "p", lowest_int, {});
  EXPECT_EQ(typist.asked.prompt, "p\nenter integer i");
  EXPECT_EQ(typist.asked.preset, "-2147483648");
}

TEST(AskInteger, TakesExactlyTheIntegersWithinTheBounds) {
  struct Row {
    const char* text;
    IntegerBounds bounds;
    std::optional<std::int32_t> value;
  };
  // clang-format off
  const std::vector<Row> rows = {
      {"7",            {},      7},
      {"-7",           {},      -7},
      {"+7",           {},      7},
      {"007",          {},      7},
      {"  7 \t",       {},      7},
      {"2147483647",   {},      2147483647},
      {"-2147483648",  {},      lowest_int},
      {"2147483648",   {},      {}},
      {"-2147483649",  {},      {}},
      {"",             {},      {}},
      {"  ",           {},      {}},
      {"x",            {},      {}},
      {"7x",           {},      {}},
      {"7.0",          {},      {}},
      {"7 8",          {},      {}},
      {"7,8",          {},      {}},
      {"7,",           {},      {}},
      {",7",           {},      {}},
      {"- 7",          {},      {}},
      {"0x7",          {},      {}},
      {"0",            {0, 4},  0},
      {"4",            {0, 4},  4},
      {"-1",           {0, 4},  {}},
      {"5",            {0, 4},  {}},
  };
  // clang-format on
  for (const Row& row : rows) {
    Typist typist({row.text});
    EXPECT_EQ(ask_integer(typist, "c", "p", 0, row.bounds), row.value) << "'" << row.text << "'";
  }
}

TEST(AskInteger, AsksAgainUntilTheTextFits) {
  Typist typist({"nine", "9", "", "4", "3"});
  EXPECT_EQ(ask_integer(typist, "c", "p", 0, {0, 8}), 4);
  EXPECT_EQ(typist.texts_left(), 1U);
}

TEST(AskTwoIntegers, ShowsItsPromptAndPreset) {
  Typist typist({"1,2"});
  EXPECT_EQ(ask_two_integers(typist, "Search", "To search", "0,0", {0, 9}), (std::array{1, 2}));
  EXPECT_EQ(typist.asked.caption, "Search");
  EXPECT_EQ(typist.asked.prompt, "To search\nenter the two integers   a,b");
  EXPECT_EQ(typist.asked.preset, "0,0");
}

TEST(AskTwoIntegers, TakesExactlyTwoWithinTheBounds) {
  struct Row {
    const char* text;
    std::optional<std::array<std::int32_t, 2>> values;
  };
  const std::vector<Row> rows = {
      {"0,10", {{0, 10}}},
      {" 3 ,\t-10 ", {{3, -10}}},
      {"+1,-1", {{1, -1}}},
      {"11,0", {}},
      {"0,11", {}},
      {"-11,0", {}},
      {"0,-11", {}},
      {"1", {}},
      {"1,", {}},
      {",1", {}},
      {",", {}},
      {"", {}},
      {"1,2,3", {}},
      {"1,2,", {}},
      {"1 2", {}},
      {"1;2", {}},
      {"1,x", {}},
      {"x,1", {}},
      {"1,4294967296", {}},
      {"1.0,2", {}},
  };
  for (const Row& row : rows) {
    Typist typist({row.text});
    EXPECT_EQ(ask_two_integers(typist, "c", "p", "", {-10, 10}), row.values) << "'" << row.text << "'";
  }
}

TEST(AskTwoIntegers, AsksAgainUntilTheConditionHolds) {
  Typist typist({"5,4", "11,12", "4,4", "3,4"});
  EXPECT_EQ(ask_two_integers(typist, "c", "p", "", {0, 10}, std::less_equal<>{}), (std::array{4, 4}));
  EXPECT_EQ(typist.texts_left(), 1U);
}

TEST(AskThreeIntegers, ShowsItsPromptAndPreset) {
  Typist typist({"1,2,3"});
  EXPECT_EQ(ask_three_integers(typist, "Cross product", "Of which", "0,0,0"), (std::array{1, 2, 3}));
  EXPECT_EQ(typist.asked.caption, "Cross product");
  EXPECT_EQ(typist.asked.prompt, "Of which\nenter the three integers   a,b,c");
  EXPECT_EQ(typist.asked.preset, "0,0,0");
}

TEST(AskThreeIntegers, TakesExactlyThreeWithinTheBounds) {
  struct Row {
    const char* text;
    std::optional<std::array<std::int32_t, 3>> values;
  };
  const std::vector<Row> rows = {
      {"0,3,10", {{0, 3, 10}}},
      {" 0 , 3 , 10 ", {{0, 3, 10}}},
      {"-10,+3,0", {{-10, 3, 0}}},
      {"11,0,0", {}},
      {"0,11,0", {}},
      {"0,0,11", {}},
      {"1,2", {}},
      {"1,2,3,4", {}},
      {"1,2,3,", {}},
      {"1,,3", {}},
      {"1", {}},
      {"", {}},
      {"1,2,x", {}},
      {"1,x,3", {}},
      {"1,2 3", {}},
  };
  for (const Row& row : rows) {
    Typist typist({row.text});
    EXPECT_EQ(ask_three_integers(typist, "c", "p", "", {-10, 10}), row.values) << "'" << row.text << "'";
  }
}

TEST(AskIntegers, GiveNothingWhenCancelled) {
  Typist typist({});
  EXPECT_EQ(ask_integer(typist, "c", "p", 1, {}), std::nullopt);
  EXPECT_EQ(ask_two_integers(typist, "c", "p", "1,1"), std::nullopt);
  EXPECT_EQ(ask_three_integers(typist, "c", "p", "1,1,1"), std::nullopt);
}

}  // namespace
}  // namespace kov
