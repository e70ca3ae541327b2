#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "algadd/algadd.h"
#include "algadd/planned_row.h"
#include "algadd/worker_pool.h"
#include "config/cphclass.h"
#include "interact/user.h"
#include "lattice/key_box.h"
#include "lattice/lmap.h"

namespace kov {

/// What a run deletes after every step.
enum class RunMode {
  keep = 0,            ///< nothing
  all_but_last = 1,    ///< all rows but the new one
  outside_ranges = 2,  ///< in earlier rows, what lies outside the ranges
  tracking = 3,        ///< likewise, and the smallest points of the new row when memory runs short
};

struct RunRequest {
  int table = 0;
  RunMode mode = RunMode::keep;
  /// Stands at the head of the step count's dialog.
  std::string intro;
  /// Negative: the person is asked.
  std::int32_t steps = -1;
};

/// How the work of each step is shared. It does not show in the results.
struct RunThreads {
  int count = processor_threads();
  PartSize part;
};

/// What a run measures its duration by: a clock that never goes back nor throws.
struct RunClock {
  using Time = std::chrono::steady_clock::time_point;
  std::function<Time()> now = [] { return std::chrono::steady_clock::now(); };
};

/// Perform Algadd: row by row from the last one on, by the table of the request, until the steps are
/// done, Break is pressed, the memory limit is passed or an error ends the run. keep holds the ranges
/// outside of which the modes 2 and 3 delete. Errors inside the step loop are reported, and the row
/// under construction is deleted. What the dialog throws, the progress box when it opens, or the last message
/// when it is made or shown (std::bad_alloc among them) escapes; the store then holds whole rows. Cost of a
/// step: O(points x entries that read them).
///
/// Duration and steps of a run are kept in algadd.last_run, whatever ended it and whatever escapes. Gives
/// true when the run changed or may have changed the store.
bool perform_algadd(Algadd& algadd, Lmap& lmap, const cphclass& cph, std::span<const KeyBox> keep,
                    const RunRequest& request, User user, const RunClock& clock = {},
                    const RunThreads& threads = {});

}  // namespace kov
