#include "lattice/row.h"

#include <algorithm>
#include <utility>

#include "lattice/row_builder.h"

namespace kov {

Row::Row(std::int32_t n, const std::optional<KeyFrame>& frame) : n_(n), frame_(frame) {}

RowPlace Row::next(RowPlace place) const noexcept {
  if (++place.index < blocks_[place.block].size()) return place;
  return {place.block + 1, 0};
}

RowPlace Row::previous(RowPlace place) const noexcept {
  if (place.index > 0) return {place.block, place.index - 1};
  return {place.block - 1, blocks_[place.block - 1].size() - 1};
}

Lk Row::key(RowPlace place) const noexcept {
  const Block& block = blocks_[place.block];
  return frame_ ? frame_->unpack(block.key(place.index), n_) : block.wide_key(place.index);
}

template <class Key>
RowPlace Row::first_not_less(const Key& key) const noexcept {
  const auto all_less = [&key](const Block& block) {
    if constexpr (std::is_same_v<Key, Lk>) {
      return Lk1LessLk2(block.wide_key(block.size() - 1), key);
    } else {
      return block.last_key() < key;
    }
  };
  const auto block = std::partition_point(blocks_.begin(), blocks_.end(), all_less);
  if (block == blocks_.end()) return end();
  return {static_cast<std::size_t>(block - blocks_.begin()), block->lower_bound(key)};
}

RowPlace Row::lower_bound(const Lk& key) const noexcept {
  if (!frame_) {
    Lk of_this_step = key;
    of_this_step.coo[0] = n_;
    return first_not_less(of_this_step);
  }
  const auto packed = frame_->ceiling(key);
  return packed ? first_not_less(*packed) : end();
}

std::size_t Row::count_before(RowPlace place) const noexcept {
  std::size_t count = place.index;
  for (std::size_t i = 0; i < place.block; ++i) count += blocks_[i].size();
  return count;
}

void Row::move_to(std::int32_t n) noexcept {
  if (!frame_) {
    for (Block& block : blocks_) block.move_to(n);
  }
  n_ = n;
  box_.min.coo[0] = n;
  box_.max.coo[0] = n;
}

void Row::set(const Lk& key, const cotyp& q) {
  const RowPlace place = lower_bound(key);
  if (is_at(place, key)) {
    set(place, q);
  } else {
    insert(key, q);
  }
}

void Row::insert(const Lk& key, const cotyp& q) {
  if (frame_ && !frame_->covers(key)) {
    Row row = reframed(key);
    row.insert(key, q);
    *this = std::move(row);
    return;
  }
  if (frame_) {
    insert_packed(frame_->pack(key), q);
  } else {
    insert_packed(key, q);
  }
  box_ = count_ == 0 ? KeyBox{key, key} : box_;
  box_.include(key);
  ++count_;
}

template <class Key>
void Row::insert_packed(const Key& key, const cotyp& q) {
  RowPlace place = first_not_less(key);
  const bool behind_all = place == end();
  if (behind_all && (blocks_.empty() || blocks_.back().full())) {
    blocks_.emplace_back(std::span(&key, 1), Column::of({&q.re, 1}), Column::of({&q.im, 1}));
    return;
  }
  if (behind_all) place = {blocks_.size() - 1, blocks_.back().size()};
  if (blocks_[place.block].full()) {
    constexpr std::size_t half = block_capacity / 2;
    blocks_.reserve(blocks_.size() + 1);
    Block upper = blocks_[place.block].split(half);
    blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(place.block) + 1, std::move(upper));
    if (place.index > half) place = {place.block + 1, place.index - half};
  }
  blocks_[place.block].insert(place.index, key, q);
}

RowPlace Row::erase(RowPlace place) noexcept {
  Block& block = blocks_[place.block];
  --count_;
  box_is_exact_ = false;
  if (block.size() == 1) {
    blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(place.block));
    return {place.block, 0};
  }
  block.erase(place.index);
  return place.index < block.size() ? place : RowPlace{place.block + 1, 0};
}

void Row::append(Block&& block, const KeyBox& box) {
  const std::size_t count = block.size();
  blocks_.push_back(std::move(block));
  if (count_ == 0) box_ = box;
  box_.include(box);
  count_ += count;
}

Row Row::reframed(const Lk& key) const {
  KeyBox box = count_ == 0 ? KeyBox{key, key} : box_;
  box.include(key);
  RowBuilder builder(n_, box);
  for (RowPlace place = begin(); place != end(); place = next(place)) {
    builder.append(this->key(place), quantity(place));
  }
  return builder.finish();
}

}  // namespace kov
