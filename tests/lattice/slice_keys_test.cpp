#include "lattice/slice_keys.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

TEST(SliceKeys, PAndMStepInEitherCase) {
  EXPECT_EQ(step_of(GridKey::of('P')), 1);
  EXPECT_EQ(step_of(GridKey::of('p')), 1);
  EXPECT_EQ(step_of(GridKey::of('M')), -1);
  EXPECT_EQ(step_of(GridKey::of('m')), -1);
  for (const char c : {'Q', '+', '-', '\0'}) EXPECT_EQ(step_of(GridKey::of(c)), 0);
  EXPECT_EQ(step_of({GridKey::Name::enter}), 0);
}

}  // namespace
}  // namespace kov
