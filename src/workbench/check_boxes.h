#pragma once

#include <string_view>

#include "workbench/workbench.h"

namespace kov {

/// Sets a check box by its name: CB_Range1IsDest, CB_Range2IsDest, or one of Graph1's (CB0qre, ...), whose
/// state is also written back to its parameter while Graph1_CB_state_saving is non-zero, and which then draws
/// the page if it is shown. False when there is no such check box.
bool set_check_box(Workbench& workbench, std::string_view name, bool checked);

/// Graph1's check boxes as their parameters say.
void take_check_boxes_from_parameters(Workbench& workbench);
/// Likewise for the one check box whose parameter has this keyword, if there is one.
void take_check_box_from_parameter(Workbench& workbench, std::string_view keyword);

}  // namespace kov
