#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "batch/output.h"
#include "workbench/pages.h"
#include "workbench/workbench.h"

namespace kov {

/// Writes what a "Print WHAT" asks for.
using Printer = std::function<void(Output& output)>;

/// For status, caption, comment, lattice and menu; and for what shows its page first: the grids, "label
/// PAGE", and the graphs, perhaps with a size ("Graph1", "Graph1 1200x900"). Null when there is nothing of
/// this name. Nothing is shown or run before the printer is called; the workbench, the pages and the user
/// must outlive it.
Printer find_printer(std::string_view what, Workbench& workbench, Pages& pages, User user);
/// Every name of the first kind.
std::vector<std::string_view> printer_names();

}  // namespace kov
