#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "lattice/block.h"
#include "lattice/key_frame.h"
#include "lattice/row.h"

namespace kov {

/// The points of one lattice in one row, in key order, their keys packed in the frame of a step: what the
/// entries with that source lattice read. Blocks of the row are referred to where they can serve as they
/// stand; others are made anew. The row must outlive the stream and not change meanwhile.
class SourceStream {
 public:
  /// The points of lattice l. frame covers the row, in at most 62 bits.
  SourceStream(const Row& row, std::int32_t l, const KeyFrame& frame);

  std::size_t count() const { return count_; }
  std::size_t block_count() const { return blocks_.size(); }
  const Block& block(std::size_t i) const { return *blocks_[i]; }

  /// The first block whose last key is not less than key; block_count() when there is none.
  std::size_t block_with(std::int64_t key) const;

 private:
  void refer(const Block& block);
  void take_part(const Row& row, const Block& block, std::int32_t l, const KeyFrame& frame);

  std::size_t count_ = 0;
  std::vector<const Block*> blocks_;
  std::vector<std::int64_t> last_keys_;
  std::vector<std::unique_ptr<const Block>> made_;
};

}  // namespace kov
