#pragma once

#include <cstdint>
#include <vector>

#include "algadd/absorbing_barrier.h"
#include "algadd/algadd.h"
#include "algadd/algadd_run.h"
#include "lattice/key_box.h"
#include "support/literal_step.h"

namespace kov {

/// What a run is given, without parameters, dialogs and displays.
struct LiteralRun {
  int table = 0;
  RunMode mode = RunMode::keep;
  std::int32_t steps = 1;
  /// Its fields are used, not its functions.
  AbsorbingBarrier barrier;
  std::vector<KeyBox> keep;
  std::int64_t tracking_kilobytes = 100000;
  std::int64_t maximum_kilobytes = 200000;
  std::int32_t percent = 30;
  bool also_till_row_0 = false;
};

struct LiteralOutcome {
  std::int64_t steps = 0;
  std::int64_t deletions = 0;
  bool out_of_memory_bound = false;
  bool overflow = false;

  friend bool operator==(const LiteralOutcome&, const LiteralOutcome&) = default;
};

/// The whole run in the plainest words: the oracle of the production run, and as slow as it looks.
LiteralOutcome literal_run(const Algadd& algadd, LiteralStore& store, const LiteralRun& run);

/// Deletes the smallest points of the last row by a sorted set of (size, key).
void literal_delete_smallest(LiteralStore& store, std::int32_t percent);

}  // namespace kov
