#include "lattice/row.h"

#include <algorithm>
#include <iterator>
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

namespace {

/// Blocks that points go into, elsewhere than at the end of the row, stay this small: an edit moves half of
/// it. Whole keys are large.
constexpr std::size_t largest_to_edit(bool wide) noexcept { return wide ? 256 : 2048; }

void read_key(const Block& block, std::size_t i, std::uint64_t& key) noexcept { key = block.key(i); }
void read_key(const Block& block, std::size_t i, Lk& key) noexcept { key = block.wide_key(i); }

// Where a block begins: its base, which is not above its first key, is at hand without a look at the keys.
bool begins_behind(const Block& block, std::uint64_t key) noexcept { return block.base() > key; }
bool begins_behind(const Block& block, const Lk& key) noexcept { return Lk1LessLk2(key, block.wide_key(0)); }

}  // namespace

template <class Key>
RowPlace Row::first_not_less(const Key& key) const noexcept {
  // For who fills a row in key order, the last block is asked first.
  auto behind = blocks_.end();
  if (!blocks_.empty() && begins_behind(blocks_.back(), key)) {
    behind = std::partition_point(blocks_.begin(), blocks_.end(),
                                  [&key](const Block& block) { return !begins_behind(block, key); });
  }
  if (behind == blocks_.begin()) return begin();
  const auto block = std::prev(behind);
  const RowPlace place{static_cast<std::size_t>(block - blocks_.begin()), block->lower_bound(key)};
  return place.index < block->size() ? place : RowPlace{place.block + 1, 0};
}

template <class Key>
bool Row::holds(RowPlace place, const Key& key) const noexcept {
  if (place == end()) return false;
  Key stored;
  read_key(blocks_[place.block], place.index, stored);
  return stored == key;
}

template <class Function>
auto Row::as_stored(const Lk& key, const Function& f) const {
  return frame_ ? f(frame_->pack(key)) : f(key);
}

Row::Spot Row::spot(const Lk& key) const noexcept {
  if (frame_ && !frame_->covers(key)) return {};
  return as_stored(key, [this](const auto& stored) {
    const RowPlace place = first_not_less(stored);
    return Spot{.place = place, .covered = true, .taken = holds(place, stored)};
  });
}

std::optional<RowPlace> Row::find(const Lk& key) const noexcept {
  const Spot found = spot(key);
  return found.taken ? std::optional(found.place) : std::nullopt;
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

bool Row::set(const Lk& key, const cotyp& q) {
  const Spot found = spot(key);
  if (found.taken) {
    set(found.place, q);
  } else {
    insert(found, key, q);
  }
  return !found.taken;
}

void Row::insert(const Spot& spot, const Lk& key, const cotyp& q) {
  if (!spot.covered) {
    Row row = reframed(key);
    row.insert(key, q);
    *this = std::move(row);
    return;
  }
  as_stored(key, [&](const auto& stored) { insert_at(spot.place, stored, q); });
  widen_box(key);
  ++count_;
}

template <class Key>
void Row::insert_at(RowPlace place, const Key& key, const cotyp& q) {
  if (place == end() && (blocks_.empty() || blocks_.back().full())) {
    blocks_.emplace_back(std::span(&key, 1), Column::of({&q.re, 1}), Column::of({&q.im, 1}));
    return;
  }
  const bool behind_all = place == end();
  // What lies before the base of a block belongs to the block before it.
  if (place.block > 0 && place.index == 0 && (behind_all || begins_behind(blocks_[place.block], key))) {
    place = {place.block - 1, blocks_[place.block - 1].size()};
  }
  if (!behind_all) place = place_for_edit(place);
  blocks_[place.block].insert(place.index, key, q);
}

RowPlace Row::place_for_edit(RowPlace place) {
  while (blocks_[place.block].size() >= largest_to_edit(!packed())) {
    if (blocks_.size() == blocks_.capacity()) blocks_.reserve(2 * blocks_.size());
    const std::size_t half = blocks_[place.block].size() / 2;
    Block upper = blocks_[place.block].split(half);
    blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(place.block) + 1, std::move(upper));
    if (place.index > half) place = {place.block + 1, place.index - half};
  }
  return place;
}

void Row::widen_box(const Lk& key) noexcept {
  if (count_ == 0) {
    box_ = {key, key};
  } else if (!frame_) {
    box_.include(key);
  } else {
    for (const KeyFrame::Field& field : frame_->fields()) {
      const std::size_t i = field.position;
      box_.min.coo[i] = std::min(box_.min.coo[i], key.coo[i]);
      box_.max.coo[i] = std::max(box_.max.coo[i], key.coo[i]);
    }
  }
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

bool Row::keep(std::size_t block, std::span<const std::uint32_t> indices) noexcept {
  Block& thinned = blocks_[block];
  if (indices.size() == thinned.size()) return false;
  count_ -= thinned.size() - indices.size();
  box_is_exact_ = false;
  if (indices.empty()) {
    blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(block));
    return true;
  }
  thinned.keep(indices);
  thinned.shrink();
  return false;
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
