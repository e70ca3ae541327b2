#pragma once

#include <ctime>
#include <string>

namespace kov {

/// A point in time as data files show it: day.month.year hour:minute:second, local time, as in
/// "20.11.2026 14:03:59".
std::string date_time_text(std::time_t time);

}  // namespace kov
