#pragma once

#include <filesystem>
#include <span>

#include "workbench/workbench.h"

namespace kov {

/// The base name of the program, of its help file and of its uniform configuration file.
inline constexpr const char* program_base_name = "kov";

/// What follows the making of a workbench at the start of the program: the caption, then the file that
/// the one argument names, or without an argument the uniform configuration of the current directory.
/// More arguments are an error, and nothing is read. What goes wrong with a file, memory that runs out
/// included, is reported and not thrown, and the default state stays.
void start_up(Workbench& workbench, User user, std::span<const std::filesystem::path> arguments);

}  // namespace kov
