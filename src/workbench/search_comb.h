#pragma once

#include "interact/user.h"
#include "workbench/workbench.h"

namespace kov {

/// The command "Search Comb": asks, searches, and puts the result in the place of the file in the current
/// directory. Where the file cannot be written that is known before the search; whatever fails later leaves
/// the old file as it was.
void search_comb(Workbench& workbench, User user);

}  // namespace kov
