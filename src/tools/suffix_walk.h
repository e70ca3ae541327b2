#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace kov {

/// Walks over the last members of the combinations of one order, as the enumeration does, and deals them out
/// in blocks: the combinations of a block follow one another in the enumeration, and so do the blocks.
///
/// The members of a combination stand at the positions 0 ... order - 1. Those below the position low are not
/// this walk's concern; it runs the one at low through a stretch of indices while those above it, the upper
/// ones, stand.
class SuffixWalk {
 public:
  struct Block {
    /// The members at the positions low + 1 ... order - 1, ascending.
    std::vector<std::uint32_t> upper;
    /// The member at low runs from first to end - 1.
    std::uint32_t first = 0;
    std::uint32_t end = 0;
    /// How many values of the member at low all blocks before had together.
    std::uint64_t before = 0;
  };

  /// Told the upper members; gives the lowest position such that no combination of interest is met from here
  /// on before the member there, or one above it, changes. Nothing when there may be one at once.
  using Hopeless = std::function<std::optional<std::uint32_t>(std::span<const std::uint32_t> upper)>;

  /// Combinations of order out of so many elements, order <= elements; a block gives the member at low at
  /// most longest_block values.
  SuffixWalk(std::uint32_t elements, std::uint32_t order, std::uint32_t low, std::uint32_t longest_block);

  /// The next block that is not hopeless; nothing behind the last. After many hopeless ones an empty block
  /// (its end is first) comes in between, so that whoever walks can look around.
  std::optional<Block> next(const Hopeless& hopeless);

 private:
  std::uint32_t end_of_low() const { return upper_.empty() ? elements_ : upper_.front(); }
  /// Counts the upper member at this position on, or the next one above it that can grow; ends where there
  /// is none.
  void advance(std::uint32_t position);
  /// False when there is more to skip.
  bool skip(const Hopeless& hopeless);

  std::uint32_t elements_;
  std::uint32_t low_;
  std::uint32_t longest_block_;
  std::vector<std::uint32_t> upper_;
  std::uint32_t next_;
  std::uint64_t before_ = 0;
  bool at_end_ = false;
};

}  // namespace kov
