#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "algadd/absorbing_barrier.h"
#include "algadd/algadd.h"
#include "algadd/algadd_run.h"
#include "algadd/run_limits.h"
#include "algadd/worker_pool.h"
#include "config/cphclass.h"
#include "interact/user.h"
#include "lattice/key_box.h"
#include "lattice/lmap.h"

namespace kov {

/// The steps of one run, when everything has been asked and the table is ready: for one call of run().
///
/// Steps count in 64 bits, since the end row of a long run lies beyond the 32 bits of a key. A row number
/// beyond them names no row: such a step finds no points. The points of the row behind the last one wrap to
/// the lowest row.
class StepLoop {
 public:
  /// All that is referred to must outlive the loop; the store must not be empty.
  StepLoop(const Algadd& algadd, Lmap& lmap, const cphclass& cph, std::span<const KeyBox> keep,
           const RunRequest& request, std::int32_t steps, const RunThreads& threads, User user);

  /// Runs until the steps are done, Break, the memory limit or an error. An error deletes the row under
  /// construction and leaves its message in failure(). What escapes leaves whole rows, too: what the progress
  /// box throws when it opens, what the message of the memory limit throws when it is shown, and
  /// std::bad_alloc when a text of either message finds no memory.
  void run();

  std::int64_t steps_performed() const { return i_ - nlast_; }
  /// What to report of the error that ended the run.
  const std::optional<std::string>& failure() const { return failure_; }

 private:
  void step();
  void build_row();
  void show_headline();
  void thin_out();
  void delete_outside_ranges();
  void delete_smallest();
  void measure() { bytes_ = static_cast<std::int64_t>(lmap_.estimated_bytes()); }
  void report_memory_stop() const;
  void drop_incomplete_row();
  /// i as the upper end of a range of rows.
  std::int32_t last_done_row() const;

  const Algadd& algadd_;
  Lmap& lmap_;
  const cphclass& cph_;
  std::span<const KeyBox> keep_;
  int table_;
  RunMode mode_;
  User user_;

  int used_length_;
  WorkerPool workers_;
  PartSize part_size_;
  AbsorbingBarrier barrier_;
  RunLimits limits_;
  std::int32_t nlast_;
  std::int64_t end_;

  /// The row that the step under way reads.
  std::int64_t i_;
  /// The row under construction, apart from the store so that it cannot disturb the walk.
  Lmap destination_;
  std::int64_t bytes_ = 0;
  std::int64_t deletions_ = 0;
  std::string label_;
  bool stop_ = false;
  /// The run ends because the store has passed the memory limit.
  bool out_of_bounds_ = false;
  std::optional<std::string> failure_;
};

}  // namespace kov
