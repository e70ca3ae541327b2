#include "lattice/row_gatherer.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "lattice/repacking.h"

namespace kov {
namespace {

/// Positions at which the keys differ are few: only these are searched for their bounds.
KeyBox box_of(std::span<const Lk> keys) noexcept {
  std::array<std::int32_t, MaxDimCount> differing{};
  const Lk& first = keys.front();
  for (const Lk& key : keys) {
    for (std::size_t i = 0; i < differing.size(); ++i) differing[i] |= key.coo[i] ^ first.coo[i];
  }
  KeyBox box{first, first};
  for (std::size_t i = 0; i < differing.size(); ++i) {
    if (differing[i] == 0) continue;
    for (const Lk& key : keys) {
      box.min.coo[i] = std::min(box.min.coo[i], key.coo[i]);
      box.max.coo[i] = std::max(box.max.coo[i], key.coo[i]);
    }
  }
  return box;
}

}  // namespace

void RowGatherer::append(const Lk& key, const cotyp& q) {
  if (keys_.size() == block_capacity) stage();
  last_ = key;
  keys_.push_back(key);
  re_.push_back(q.re);
  im_.push_back(q.im);
}

void RowGatherer::stage() {
  const KeyBox box = box_of(keys_);
  const auto frame = KeyFrame::for_box(box);
  if (frame) {
    std::vector<std::uint64_t> packed(keys_.size());
    std::transform(keys_.begin(), keys_.end(), packed.begin(),
                   [&frame](const Lk& key) { return frame->pack(key); });
    staged_.push_back({frame, box, Block(packed, Column::of(re_), Column::of(im_))});
  } else {
    staged_.push_back({frame, box, Block(keys_, Column::of(re_), Column::of(im_))});
  }
  keys_.clear();
  re_.clear();
  im_.clear();
}

Row RowGatherer::finish() {
  if (!keys_.empty()) stage();
  KeyBox box = staged_.front().box;
  for (const Staged& staged : staged_) box.include(staged.box);
  const std::int32_t n = last_.n();
  Row row(n, KeyFrame::with_room(box));
  std::vector<std::uint64_t> packed;
  std::vector<Lk> wide;
  for (Staged& staged : staged_) {
    Block& block = staged.block;
    if (row.packed()) {
      packed.resize(block.size());
      block.decode_keys(0, packed);
      Repacking(*staged.frame, row.frame(), packed.front()).apply(packed);
      block.set_keys(packed);
    } else if (staged.frame) {
      wide.resize(block.size());
      for (std::size_t i = 0; i < wide.size(); ++i) wide[i] = staged.frame->unpack(block.key(i), n);
      block.set_keys(wide);
    }
    row.append(std::move(block), staged.box);
  }
  staged_.clear();
  return row;
}

}  // namespace kov
