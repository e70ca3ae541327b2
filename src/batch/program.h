#pragma once

#include <span>

#include "batch/runner.h"
#include "pictures/picture_writer.h"

namespace kov {

/// kovbatch from its arguments (without the program's name) to its exit status, on the process's standard
/// descriptors and signals. Without somebody who writes pictures, lines that draw fail.
ExitStatus run_program(std::span<const char* const> arguments, PictureWriter* pictures = nullptr);

}  // namespace kov
