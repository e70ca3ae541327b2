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

namespace {

bool less(std::uint64_t a, std::uint64_t b) noexcept { return a < b; }
bool less(const Lk& a, const Lk& b) noexcept { return Lk1LessLk2(a, b); }

void read_key(const Block& block, std::size_t i, std::uint64_t& key) noexcept { key = block.key(i); }
void read_key(const Block& block, std::size_t i, Lk& key) noexcept { key = block.wide_key(i); }

/// For who fills a row in key order, the last block is asked first.
template <class Key>
bool all_less(const Block& block, const Key& key) noexcept {
  Key last;
  read_key(block, block.size() - 1, last);
  return less(last, key);
}

}  // namespace

template <class Key>
RowPlace Row::first_not_less(const Key& key) const noexcept {
  if (blocks_.empty() || all_less(blocks_.back(), key)) return end();
  const auto block = std::partition_point(blocks_.begin(), blocks_.end(),
                                          [&key](const Block& at) { return all_less(at, key); });
  return {static_cast<std::size_t>(block - blocks_.begin()), block->lower_bound(key)};
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

std::optional<RowPlace> Row::find(const Lk& key) const noexcept {
  if (frame_ && !frame_->covers(key)) return std::nullopt;
  return as_stored(key, [this](const auto& stored) -> std::optional<RowPlace> {
    const RowPlace place = first_not_less(stored);
    return holds(place, stored) ? std::optional(place) : std::nullopt;
  });
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
  if (const auto place = find(key)) {
    set(*place, q);
    return false;
  }
  insert(key, q);
  return true;
}

void Row::insert(const Lk& key, const cotyp& q) {
  if (frame_ && !frame_->covers(key)) {
    Row row = reframed(key);
    row.insert(key, q);
    *this = std::move(row);
    return;
  }
  as_stored(key, [&](const auto& stored) { insert_at(first_not_less(stored), stored, q); });
  box_ = count_ == 0 ? KeyBox{key, key} : box_;
  box_.include(key);
  ++count_;
}

template <class Key>
void Row::insert_at(RowPlace place, const Key& key, const cotyp& q) {
  const bool behind_all = place == end();
  if (behind_all && (blocks_.empty() || blocks_.back().full())) {
    blocks_.emplace_back(std::span(&key, 1), Column::of({&q.re, 1}), Column::of({&q.im, 1}));
    return;
  }
  if (behind_all) place = {blocks_.size() - 1, blocks_.back().size()};
  if (blocks_[place.block].full()) {
    constexpr std::size_t half = block_capacity / 2;
    if (blocks_.size() == blocks_.capacity()) blocks_.reserve(2 * blocks_.size());
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
