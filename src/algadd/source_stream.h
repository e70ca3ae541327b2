#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "algadd/worker_pool.h"
#include "lattice/block.h"
#include "lattice/key_frame.h"
#include "lattice/row.h"

namespace kov {

/// The points of one lattice in one row, in key order, their keys packed in the frame of a step: what the
/// entries with that source lattice read. The row must outlive the stream and not change meanwhile.
class SourceStream {
 public:
  std::size_t count() const { return count_; }
  std::size_t block_count() const { return blocks_.size(); }
  const Block& block(std::size_t i) const { return *blocks_[i]; }

  /// The first block whose last key is not less than key; block_count() when there is none.
  std::size_t block_with(std::int64_t key) const;

  /// Points behind those that are here: a block of the row that can serve as it stands, or one made anew.
  void append(const Block& block);
  void append(std::unique_ptr<const Block> block);

 private:
  std::size_t count_ = 0;
  std::vector<const Block*> blocks_;
  std::vector<std::int64_t> last_keys_;
  std::vector<std::unique_ptr<const Block>> made_;
};

/// The stream of each of the lattices, which ascend. frame covers the row, in at most 62 bits. Where the row
/// has another lattice or another frame, the points are sorted out once for all of them, on the threads of
/// the pool; between is called as WorkerPool::run does.
std::vector<SourceStream> source_streams(const Row& row, std::span<const std::int32_t> lattices,
                                         const KeyFrame& frame, WorkerPool& workers,
                                         const std::function<void()>& between);

}  // namespace kov
