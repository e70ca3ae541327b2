#include "text/word_scanner.h"

#include <gtest/gtest.h>

#include <string>

namespace kov {
namespace {

TEST(WordScanner, GivesEightCharactersAndNulsBehindTheEnd) {
  const std::string text = "12345678/9";
  for (std::size_t size = 0; size <= text.size(); ++size) {
    const std::string part = text.substr(0, size);
    for (std::size_t at = 0; at <= size; ++at) {
      WordScanner scanner(part);
      scanner.skip(at);
      std::string word;
      for (std::uint64_t rest = scanner.word(), i = 0; i < 8; ++i, rest >>= 8) {
        word += static_cast<char>(rest & 0xff);
      }
      std::string expected = part.substr(at, 8);
      expected.resize(8, '\0');
      ASSERT_EQ(word, expected) << part << " at " << at;
    }
  }
}

TEST(WordScanner, CountsTheDigitsAWordBeginsWith) {
  for (int other = 0; other < 256; ++other) {
    const char c = static_cast<char>(other);
    if ('0' <= c && c <= '9') continue;
    for (std::size_t count = 0; count < 8; ++count) {
      const std::string text = std::string("90123456").substr(0, count) + c + std::string(8, '\xff');
      const std::uint64_t word = WordScanner(text).word();
      ASSERT_EQ(WordScanner::digit_count(word), count) << other;
      if (count > 0) {
        ASSERT_EQ(WordScanner::digits_value(word, count), std::stoull(text.substr(0, count)));
      }
    }
  }
  EXPECT_EQ(WordScanner::digit_count(WordScanner("99999999").word()), 8U);
  EXPECT_EQ(WordScanner::digits_value(WordScanner("98765432").word(), 8), 98765432U);
}

TEST(WordScanner, ReadsNumbersOfUpToNineteenDigits) {
  const std::string digits = "9876543210987654321";
  for (std::size_t size = 1; size <= digits.size(); ++size) {
    const std::string text = digits.substr(0, size) + "x";
    WordScanner scanner(text);
    std::uint64_t number = 0;
    std::size_t count = 0;
    ASSERT_EQ(scanner.digits(number, count), size);
    EXPECT_EQ(number, std::stoull(digits.substr(0, size)));
    EXPECT_EQ(count, size);
    EXPECT_TRUE(scanner.take('x'));
    EXPECT_FALSE(scanner.take('x'));
    EXPECT_TRUE(scanner.at_end());
    EXPECT_EQ(scanner.peek(), '\0');
  }
  const std::string long_text = digits + "0";
  WordScanner scanner(long_text);
  std::uint64_t number = 0;
  std::size_t count = 0;
  EXPECT_EQ(scanner.digits(number, count), 0U);
}

TEST(WordScanner, AppendsDigitsToThoseBefore) {
  WordScanner scanner("12.0345");
  std::uint64_t number = 0;
  std::size_t count = 0;
  EXPECT_EQ(scanner.digits(number, count), 2U);
  scanner.skip(1);
  EXPECT_EQ(scanner.digits(number, count), 4U);
  EXPECT_EQ(number, 120345U);
  EXPECT_EQ(count, 6U);
}

}  // namespace
}  // namespace kov
