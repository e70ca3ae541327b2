#pragma once

#include <vector>

#include "config/mmi.h"
#include "config/window_facts.h"

namespace kov {

/// Every program parameter with its default, in the order of definition. The window's place and size are
/// the defaults of the last four, so that a saved configuration records them.
std::vector<Kpair> definition_table(const WindowFacts& window);

}  // namespace kov
