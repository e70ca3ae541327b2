#pragma once

#include "workbench/workbench.h"

namespace kov {

// Commands that stand in two menus: in the menu bar, and at the page whose table they choose.

/// Asks for the Algadd table and makes it the current one.
void choose_algadd_table(Workbench& workbench, User user);
/// Asks for the range table, makes it the current one and stores it in Sums1_DefaultTableIndex; the
/// Modify Range menu is open afterwards.
void choose_sums1_table(Workbench& workbench, User user);

}  // namespace kov
