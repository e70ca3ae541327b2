#include "text/grouping.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

TEST(KilobyteText, HasThreeDecimalsAndBlanksBetweenThousands) {
  EXPECT_EQ(kilobyte_text(0), "0.000");
  EXPECT_EQ(kilobyte_text(176), "0.176");
  EXPECT_EQ(kilobyte_text(1000 * 176), "176.000");
  EXPECT_EQ(kilobyte_text(999'999), "999.999");
  EXPECT_EQ(kilobyte_text(1'000'000), "1 000.000");
  EXPECT_EQ(kilobyte_text(1'234'567'891), "1 234 567.891");
}

}  // namespace
}  // namespace kov
