#pragma once

#include <string>

namespace kov {

// The lowest warning level (Messages::wl) at which each kind of message shows itself.
inline constexpr int level_of_beeps = 1;
inline constexpr int level_of_usual_warnings = 2;
inline constexpr int level_of_all_warnings = 3;
inline constexpr int level_of_remarks = 4;

/// Caption of the dialog in which a person changes the warning level.
inline constexpr const char* warning_level_caption = "Change warnlevel wl";

/// Prompt of that dialog, what every level shows included; ask_integer appends the range.
std::string warning_level_prompt();

}  // namespace kov
