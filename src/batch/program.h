#pragma once

#include <span>

#include "batch/runner.h"

namespace kov {

/// kovbatch from its arguments (without the program's name) to its exit status, on the process's standard
/// descriptors and signals.
ExitStatus run_program(std::span<const char* const> arguments);

}  // namespace kov
