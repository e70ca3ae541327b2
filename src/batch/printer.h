#pragma once

#include <string_view>
#include <vector>

#include "batch/output.h"
#include "workbench/workbench.h"

namespace kov {

/// What "Print WHAT" writes: status, caption, comment, lattice, menu, and the pages' grids, each of which
/// shows its page first. Its words are given without running anything.
using Printer = void (*)(Workbench& workbench, User user, Output& output);

/// Null when there is nothing of this name.
Printer find_printer(std::string_view what);
/// Every name that find_printer knows.
std::vector<std::string_view> printer_names();

}  // namespace kov
