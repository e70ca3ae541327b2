#pragma once

#include <filesystem>

namespace kov {

/// The help file, "kov.hlp": beside the program, or where it is installed.
std::filesystem::path help_file();
/// The same for a program in that folder.
std::filesystem::path help_file_of(const std::filesystem::path& program_folder);

}  // namespace kov
