#include "interact/warning_level.h"

#include <array>

#include "interact/messages.h"
#include "text/integers.h"

namespace kov {

namespace {

constexpr std::array<const char*, 5> what_a_level_shows = {
    "Only errors and essential warnings",  //
    "Additionally beeps on all warnings",  //
    "Additionally usual warnings",         //
    "All warnings",                        //
    "All warnings and remarks",
};
static_assert(what_a_level_shows.size() == Messages::highest_level - Messages::lowest_level + 1);

}  // namespace

std::string warning_level_prompt() {
  std::string text = "Here you can change the warnlevel:";
  int level = Messages::lowest_level;
  for (const char* const shown : what_a_level_shows) text += "\n  " + int_text(level++) + ": " + shown;
  return text + "\nare displayed.\n\nTo change the warnlevel wl to a new integer i";
}

}  // namespace kov
