#pragma once

#include "datafile/read_with_overlay.h"
#include "workbench/workbench.h"

namespace kov {

/// The workbench as the reading operations take it. The workbench must outlive the result.
FileContext file_context(Workbench& workbench, User user);

}  // namespace kov
