#include "algadd/source_stream.h"

#include <algorithm>
#include <array>

namespace kov {

SourceStream::SourceStream(const Row& row, std::int32_t l, const KeyFrame& frame) {
  const bool one_lattice = row.box().min.l() == l && row.box().max.l() == l;
  const bool same_keys = row.frame() == frame;
  for (std::size_t i = 0; i < row.block_count(); ++i) {
    if (one_lattice && same_keys) {
      refer(row.block(i));
    } else {
      take_part(row, row.block(i), l, frame);
    }
  }
}

std::size_t SourceStream::block_with(std::int64_t key) const {
  return static_cast<std::size_t>(std::lower_bound(last_keys_.begin(), last_keys_.end(), key) -
                                  last_keys_.begin());
}

void SourceStream::refer(const Block& block) {
  blocks_.push_back(&block);
  last_keys_.push_back(static_cast<std::int64_t>(block.last_key()));
  count_ += block.size();
}

void SourceStream::take_part(const Row& row, const Block& block, std::int32_t l, const KeyFrame& frame) {
  std::array<std::uint64_t, block_capacity> keys;
  std::array<std::uint32_t, block_capacity> indices;
  std::size_t count = 0;
  for (std::size_t i = 0; i < block.size(); ++i) {
    const std::uint64_t packed = block.key(i);
    if (row.frame().coordinate(packed, l_position) != l) continue;
    keys[count] = packed;
    indices[count++] = static_cast<std::uint32_t>(i);
  }
  if (count == 0) return;
  if (!(row.frame() == frame)) {
    for (std::size_t i = 0; i < count; ++i) keys[i] = frame.pack(row.frame().unpack(keys[i], row.n()));
  }
  const std::span taken(indices.data(), count);
  made_.push_back(std::make_unique<const Block>(std::span<const std::uint64_t>(keys.data(), count),
                                                block.re().picked(taken), block.im().picked(taken)));
  refer(*made_.back());
}

}  // namespace kov
