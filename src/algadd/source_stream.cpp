#include "algadd/source_stream.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "lattice/bit_list.h"
#include "lattice/repacking.h"
#include "numbers/pick.h"
#include "text/integers.h"

namespace kov {

namespace {

using MadeBlocks = std::vector<std::unique_ptr<const Block>>;

/// Sorts the points of the blocks of a row out by their lattices.
class LatticeSorter {
 public:
  LatticeSorter(const Row& row, std::span<const std::int32_t> lattices, const KeyFrame& frame)
      : row_(row), lattices_(lattices) {
    if (!(row.frame() == frame)) repacking_.emplace(row.frame(), frame, row.block(0).first_key());
  }

  /// For each lattice its points of the row's block i; nothing where there are none.
  MadeBlocks sorted_out(std::size_t i) const {
    const Block& block = row_.block(i);
    std::array<std::uint64_t, block_capacity> room;
    const std::span keys(room.data(), block.size());
    block.decode_keys(0, keys);
    std::vector<BitList> of_lattices;
    for (const std::int32_t l : lattices_) of_lattices.push_back(points_of(l, keys));
    if (repacking_) repacking_->apply(keys);
    MadeBlocks made;
    for (const BitList& points : of_lattices) made.push_back(picked(block, keys, points));
    return made;
  }

 private:
  BitList points_of(std::int32_t l, std::span<const std::uint64_t> keys) const {
    const KeyFrame& frame = row_.frame();
    const int shift = frame.shift_of(l_position);
    const auto distance = static_cast<std::uint32_t>(wrapping_subtract(l, frame.low(l_position)));
    const std::uint64_t lattices = (std::uint64_t{1} << frame.bits(l_position)) - 1;
    if (distance > lattices) return BitList(keys.size());
    return BitList::equal_to(std::uint64_t{distance} << shift, lattices << shift, keys);
  }

  static std::unique_ptr<const Block> picked(const Block& block, std::span<const std::uint64_t> keys,
                                             const BitList& points) {
    std::array<std::uint64_t, block_capacity> room;
    const std::size_t count = points.count_ones();
    if (count == 0) return nullptr;
    pick(keys.data(), keys.size(), points.words(), room.data());
    return std::make_unique<const Block>(std::span<const std::uint64_t>(room.data(), count),
                                         block.re().picked(points), block.im().picked(points));
  }

  const Row& row_;
  std::span<const std::int32_t> lattices_;
  std::optional<Repacking> repacking_;
};

}  // namespace

std::size_t SourceStream::block_with(std::int64_t key) const {
  return static_cast<std::size_t>(std::lower_bound(last_keys_.begin(), last_keys_.end(), key) -
                                  last_keys_.begin());
}

void SourceStream::append(const Block& block) {
  blocks_.push_back(&block);
  last_keys_.push_back(static_cast<std::int64_t>(block.last_key()));
  count_ += block.size();
}

void SourceStream::append(std::unique_ptr<const Block> block) {
  append(*block);
  made_.push_back(std::move(block));
}

std::vector<SourceStream> source_streams(const Row& row, std::span<const std::int32_t> lattices,
                                         const KeyFrame& frame, WorkerPool& workers,
                                         const std::function<void()>& between) {
  std::vector<SourceStream> streams(lattices.size());
  if (row.frame() == frame && row.box().min.l() == row.box().max.l()) {
    const auto stream = std::find(lattices.begin(), lattices.end(), row.box().min.l());
    if (stream == lattices.end()) return streams;
    SourceStream& all = streams[static_cast<std::size_t>(stream - lattices.begin())];
    for (std::size_t i = 0; i < row.block_count(); ++i) all.append(row.block(i));
    return streams;
  }
  const LatticeSorter sorter(row, lattices, frame);
  std::vector<MadeBlocks> made(row.block_count());
  workers.run(
      made.size(), [&](std::size_t block, std::size_t) { made[block] = sorter.sorted_out(block); }, between);
  for (MadeBlocks& blocks : made) {
    for (std::size_t i = 0; i < streams.size(); ++i) {
      if (blocks[i]) streams[i].append(std::move(blocks[i]));
    }
  }
  return streams;
}

}  // namespace kov
