#include "algadd/source_stream.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "lattice/repacking.h"

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
    std::array<std::uint64_t, block_capacity> keys;
    std::array<std::uint64_t, block_capacity> packed;
    const std::span all(keys.data(), block.size());
    block.decode_keys(0, all);
    std::copy(all.begin(), all.end(), packed.begin());
    if (repacking_) repacking_->apply(std::span(packed.data(), block.size()));
    MadeBlocks made;
    for (const std::int32_t l : lattices_) made.push_back(of_lattice(block, l, all, packed));
    return made;
  }

 private:
  std::unique_ptr<const Block> of_lattice(const Block& block, std::int32_t l,
                                          std::span<const std::uint64_t> keys,
                                          std::span<const std::uint64_t> packed) const {
    std::array<std::uint64_t, block_capacity> taken;
    std::array<std::uint32_t, block_capacity> indices;
    const KeyFrame& frame = row_.frame();
    std::size_t count = 0;
    for (std::size_t i = 0; i < keys.size(); ++i) {
      taken[count] = packed[i];
      indices[count] = static_cast<std::uint32_t>(i);
      count += static_cast<std::size_t>(frame.coordinate(keys[i], l_position) == l);
    }
    if (count == 0) return nullptr;
    const std::span some(indices.data(), count);
    return std::make_unique<const Block>(std::span<const std::uint64_t>(taken.data(), count),
                                         block.re().picked(some), block.im().picked(some));
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
