#pragma once

#include <cstdint>

#include "algadd/algadd.h"
#include "algadd/planned_row.h"
#include "algadd/worker_pool.h"
#include "interact/progress.h"
#include "lattice/lmap.h"

namespace kov {

/// Makes the points that follow in one step of Algadd, on all threads of a pool. Bit for bit the same as
/// AddLpairToLmap_1 called for each source point in key order, whatever the number of threads.
class RowStep {
 public:
  explicit RowStep(WorkerPool& workers, PartSize size = {}) : workers_(workers), size_(size) {}

  /// What the entries 0 ... used_length - 1 of table t make of all points of the store from row n on. Throws
  /// floating_overflow when a product or a sum is not finite, and std::bad_alloc. The display breathes every
  /// few milliseconds.
  Lmap destinations(const Algadd& algadd, int table, int used_length, const Lmap& store, std::int32_t n,
                    Progress& progress) const;

 private:
  WorkerPool& workers_;
  PartSize size_;
};

}  // namespace kov
