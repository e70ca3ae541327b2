#include "text/tokens.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

TEST(Tokens, AreSeparatedByBlanksAndTabs) {
  Tokens tokens("  e_l 1\t-2  x ");
  EXPECT_EQ(tokens.next(), "e_l");
  EXPECT_EQ(tokens.next(), "1");
  EXPECT_FALSE(tokens.at_end());
  EXPECT_EQ(tokens.next(), "-2");
  EXPECT_EQ(tokens.rest(), "  x ");
  EXPECT_EQ(tokens.next(), "x");
  EXPECT_TRUE(tokens.at_end());
  EXPECT_EQ(tokens.next(), "");
  EXPECT_EQ(tokens.next(), "");
}

TEST(Tokens, OfAnEmptyLineAreNone) {
  Tokens tokens("");
  EXPECT_TRUE(tokens.at_end());
  EXPECT_EQ(tokens.next(), "");
}

TEST(Trimmed, DropsBlanksAndControlCharactersAtBothEnds) {
  EXPECT_EQ(trimmed(" \t\r\n 1 2 \x01 "), "1 2");
  EXPECT_EQ(trimmed(" \t"), "");
  EXPECT_EQ(trimmed("\xc3\xad"), "\xc3\xad");
}

}  // namespace
}  // namespace kov
