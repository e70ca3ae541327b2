#include "interact/grid_keys.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

TEST(GridKeys, LettersAreTakenInUpperCase) {
  EXPECT_EQ(upper_character(GridKey::of('a')), 'A');
  EXPECT_EQ(upper_character(GridKey::of('z')), 'Z');
  for (const char c : {'A', 'Z', '0', '@', '`', '{', '/', '\xe4'}) {
    EXPECT_EQ(upper_character(GridKey::of(c)), c);
  }
  EXPECT_EQ(upper_character({GridKey::Name::enter}), '\0');
}

TEST(GridKeys, TheEditorTakesTheAdmittedCharactersInEitherCase) {
  for (const char c : {'1', 'E', 'e'}) EXPECT_TRUE(passes_to_editor(GridKey::of(c), "1E"));
  for (const char c : {'2', 'I', 'i', '\0'}) EXPECT_FALSE(passes_to_editor(GridKey::of(c), "1E"));
  EXPECT_FALSE(passes_to_editor(GridKey::of('1'), ""));
}

TEST(GridKeys, OnlyEnterAndEscapeAreKeptFromEditorAndSelection) {
  using enum GridKey::Name;
  for (const auto name : {tab, backspace, up, down, page_up, page_down, first_page, last_page}) {
    EXPECT_TRUE(passes_to_editor({name}, ""));
  }
  EXPECT_FALSE(passes_to_editor({enter}, "1E"));
  EXPECT_FALSE(passes_to_editor({escape}, "1E"));
}

TEST(GridKeys, PAndMStepInEitherCase) {
  for (const char c : {'P', 'p'}) EXPECT_EQ(step_of(GridKey::of(c)), 1);
  for (const char c : {'M', 'm'}) EXPECT_EQ(step_of(GridKey::of(c)), -1);
  for (const char c : {'Q', '+', '-', '\0'}) EXPECT_EQ(step_of(GridKey::of(c)), 0);
  EXPECT_EQ(step_of({GridKey::Name::enter}), 0);
}

}  // namespace
}  // namespace kov
