#include "interact/warning_level.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

TEST(WarningLevel, DialogSaysWhatEveryLevelShows) {
  EXPECT_STREQ(warning_level_caption, "Change warnlevel wl");
  EXPECT_EQ(warning_level_prompt(),
            "Here you can change the warnlevel:\n"
            "  0: Only errors and essential warnings\n"
            "  1: Additionally beeps on all warnings\n"
            "  2: Additionally usual warnings\n"
            "  3: All warnings\n"
            "  4: All warnings and remarks\n"
            "are displayed.\n"
            "\n"
            "To change the warnlevel wl to a new integer i");
}

}  // namespace
}  // namespace kov
