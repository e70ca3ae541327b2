#include "datafile/text_buffer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace kov {
namespace {

constexpr std::size_t block = std::size_t{1} << 20;

TEST(TextBuffer, PutsPartsOneBehindTheOther) {
  std::string text;
  TextBuffer out([&text](std::string_view part) { text += part; });
  out.line("a", ' ', -1, ' ', std::int8_t{2}, ' ', std::numeric_limits<std::uint64_t>::max());
  out.line();
  out.put(std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(text, "");
  out.flush();
  EXPECT_EQ(text, "a -1 2 18446744073709551615\r\n\r\n-9223372036854775808");
}

TEST(TextBuffer, DropsWhatWasNotFlushed) {
  std::string text;
  {
    TextBuffer([&text](std::string_view part) { text += part; }).put("half a line");
  }
  EXPECT_EQ(text, "");
}

TEST(TextBuffer, HandsOnBlocksThatAreNeverLargerThanOneUnlessAPieceIs) {
  std::string text;
  std::string expected;
  std::vector<std::size_t> sizes;
  TextBuffer out([&](std::string_view part) {
    text += part;
    sizes.push_back(part.size());
  });
  for (int i = 0; i < 500000; ++i) {
    out.put(i);
    out.put(' ');
    expected += std::to_string(i) + " ";
  }
  EXPECT_GT(sizes.size(), 1U);
  for (const std::size_t size : sizes) EXPECT_LE(size, block);
  const std::string large(3 * block, 'x');
  out.put(large);
  out.flush();
  EXPECT_EQ(text, expected + large);
}

TEST(TextBuffer, PassesOnALargeTextBehindWhatWasPut) {
  std::vector<std::string> parts;
  TextBuffer out([&parts](std::string_view part) { parts.emplace_back(part); });
  out.pass_on("a");
  out.put("b");
  out.pass_on("c");
  out.put("d");
  out.flush();
  EXPECT_EQ(parts, (std::vector<std::string>{"a", "b", "c", "d"}));
}

}  // namespace
}  // namespace kov
