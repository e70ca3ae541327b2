#pragma once

#include <filesystem>

namespace kov {

/// The help file, "kov.hlp": beside the program, or where it is installed.
std::filesystem::path help_file();

}  // namespace kov
