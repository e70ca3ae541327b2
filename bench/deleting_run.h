#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kov {

/// Most bytes of memory that a run which deletes all rows but the last one ever takes, for each point of the
/// last row. The run is a process of its own, this program started again, so that nothing else is counted.
/// kind: "integers" or "floating".
double peak_of_deleting_run(const std::string& kind, std::int32_t side);

// The process that is measured.

bool is_deleting_run(const std::vector<char*>& arguments);
/// Prints the figure; gives the exit status.
int perform_deleting_run(const std::vector<char*>& arguments);

}  // namespace kov
