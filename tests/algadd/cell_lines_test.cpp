#include "algadd/cell_lines.h"

#include <gtest/gtest.h>

#include <vector>

namespace kov {
namespace {

TEST(ForEachMark, GoesThroughAllInTheirOrder) {
  std::vector<std::uint8_t> marks(48);
  for (const std::size_t i : {0U, 7U, 8U, 30U, 47U}) marks[i] = 1;
  std::vector<std::size_t> seen;
  for_each_mark(marks.data(), marks.size(), [&](std::size_t i) KOV_INLINE { seen.push_back(i); });
  EXPECT_EQ(seen, (std::vector<std::size_t>{0, 7, 8, 30, 47}));
  EXPECT_EQ(marks, std::vector<std::uint8_t>(48));
}

}  // namespace
}  // namespace kov
