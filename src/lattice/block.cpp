#include "lattice/block.h"

#include <algorithm>
#include <limits>
#include <type_traits>
#include <utility>

#include "lattice/copied_variant.h"
#include "lattice/spare_memory.h"

namespace kov {
namespace {

constexpr std::uint64_t largest_offset = std::numeric_limits<std::uint32_t>::max();

template <class Key>
void insert_key(std::vector<Key>& keys, std::size_t i, const Key& key) noexcept {
  keys.insert(keys.begin() + static_cast<std::ptrdiff_t>(i), key);
}

// J. L. Bentley, A. C. Yao, An almost optimal algorithm for unbounded searching, Information Processing
// Letters 5 (1976) 82-87.
template <class Key>
std::size_t lower_bound_near(std::span<const Key> keys, Key key, std::size_t near) noexcept {
  std::size_t low = std::min(near, keys.size());
  std::size_t high = low;
  std::size_t step = 16;
  if (low < keys.size() && keys[low] < key) {
    for (high = low + step; high < keys.size() && keys[high] < key; high += step) {
      low = high;
      step *= 2;
    }
    high = std::min(high, keys.size());
  } else {
    for (low = high - std::min(step, high); low > 0 && keys[low] >= key; low -= std::min(step, low)) {
      high = low;
      step *= 2;
    }
  }
  const auto begin = keys.begin();
  return static_cast<std::size_t>(std::lower_bound(begin + static_cast<std::ptrdiff_t>(low),
                                                   begin + static_cast<std::ptrdiff_t>(high), key) -
                                  begin);
}

std::vector<std::uint32_t> offsets_of(std::span<const std::uint64_t> keys) {
  std::vector<std::uint32_t> offsets(keys.size());
  std::transform(keys.begin(), keys.end(), offsets.begin(),
                 [base = keys.front()](std::uint64_t key) { return static_cast<std::uint32_t>(key - base); });
  return offsets;
}

}  // namespace

Block::Block(std::span<const std::uint64_t> keys, Column re, Column im)
    : re_(std::move(re)), im_(std::move(im)) {
  set_keys(keys);
}

Block::Block(std::uint64_t base, std::span<const std::uint32_t> offsets, Column re, Column im)
    : base_(base),
      keys_(std::vector<std::uint32_t>(offsets.begin(), offsets.end())),
      re_(std::move(re)),
      im_(std::move(im)) {}

Block::Block(std::span<const Lk> keys, Column re, Column im)
    : keys_(std::vector<Lk>(keys.begin(), keys.end())), re_(std::move(re)), im_(std::move(im)) {}

Block::Block(const Block& other)
    : base_(other.base_), keys_(copied(other.keys_)), re_(other.re_), im_(other.im_) {}

Block& Block::operator=(Block other) noexcept {
  base_ = other.base_;
  keys_ = std::move(other.keys_);
  re_ = std::move(other.re_);
  im_ = std::move(other.im_);
  return *this;
}

std::size_t Block::bytes() const noexcept {
  const std::size_t key = std::visit([](const auto& keys) { return sizeof(keys[0]); }, keys_);
  return size() * key + re_.bytes() + im_.bytes();
}

void Block::decode_keys(std::size_t first, std::span<std::uint64_t> out) const noexcept {
  if (const std::uint32_t* near = offsets()) {
    for (std::size_t i = 0; i < out.size(); ++i) out[i] = base_ + near[first + i];
  } else {
    std::copy_n(keys() + first, out.size(), out.begin());
  }
}

std::size_t Block::lower_bound(std::uint64_t key) const noexcept {
  if (const std::uint32_t* near = offsets()) {
    if (key <= base_) return 0;
    if (key - base_ > largest_offset) return size();
    const auto offset = static_cast<std::uint32_t>(key - base_);
    return static_cast<std::size_t>(std::lower_bound(near, near + size(), offset) - near);
  }
  return static_cast<std::size_t>(std::lower_bound(keys(), keys() + size(), key) - keys());
}

std::size_t Block::lower_bound(std::uint64_t key, std::size_t near) const noexcept {
  if (const std::uint32_t* offsets_from_base = offsets()) {
    if (key <= base_) return 0;
    if (key - base_ > largest_offset) return size();
    return lower_bound_near(std::span(offsets_from_base, size()), static_cast<std::uint32_t>(key - base_),
                            near);
  }
  return lower_bound_near(std::span(keys(), size()), key, near);
}

std::size_t Block::lower_bound(const Lk& key) const noexcept {
  const Lk* first = array<Lk>();
  return static_cast<std::size_t>(std::lower_bound(first, first + size(), key, LkOrder()) - first);
}

void Block::make_room(const cotyp& q) {
  re_.make_fit(q.re);
  im_.make_fit(q.im);
  re_.reserve_one();
  im_.reserve_one();
}

void Block::insert_quantity(std::size_t i, const cotyp& q) noexcept {
  re_.insert(i, q.re);
  im_.insert(i, q.im);
}

void Block::make_room(std::uint64_t key) {
  if (offsets()) {
    const std::uint64_t lowest = std::min(key, base_);
    const std::uint64_t highest = std::max(key, last_key());
    if (highest - lowest > largest_offset) make_far();
  }
  std::visit([](auto& keys) { reserve_one(keys); }, keys_);
}

void Block::make_far() {
  std::vector<std::uint64_t> keys(size());
  decode_keys(0, keys);
  keys_ = std::move(keys);
}

void Block::insert(std::size_t i, std::uint64_t key, const cotyp& q) {
  make_room(q);
  make_room(key);
  if (auto* near = std::get_if<std::vector<std::uint32_t>>(&keys_)) {
    if (key < base_) {
      const auto distance = static_cast<std::uint32_t>(base_ - key);
      for (std::uint32_t& offset : *near) offset += distance;
      base_ = key;
    }
    insert_key(*near, i, static_cast<std::uint32_t>(key - base_));
  } else if (auto* far = std::get_if<std::vector<std::uint64_t>>(&keys_)) {
    base_ = std::min(base_, key);
    insert_key(*far, i, key);
  }
  insert_quantity(i, q);
}

void Block::insert(std::size_t i, const Lk& key, const cotyp& q) {
  make_room(q);
  if (auto* keys = std::get_if<std::vector<Lk>>(&keys_)) {
    reserve_one(*keys);
    insert_key(*keys, i, key);
  }
  insert_quantity(i, q);
}

void Block::set(std::size_t i, const cotyp& q) {
  re_.make_fit(q.re);
  im_.make_fit(q.im);
  re_.set(i, q.re);
  im_.set(i, q.im);
}

void Block::set_keys(std::span<const std::uint64_t> keys) {
  if (keys.back() - keys.front() <= largest_offset) {
    keys_ = offsets_of(keys);
  } else {
    keys_ = std::vector<std::uint64_t>(keys.begin(), keys.end());
  }
  base_ = keys.front();
}

void Block::set_keys(std::span<const Lk> keys) { keys_ = std::vector<Lk>(keys.begin(), keys.end()); }

void Block::set_columns(Column re, Column im) noexcept {
  re_ = std::move(re);
  im_ = std::move(im);
}

void Block::erase(std::size_t first, std::size_t count) noexcept {
  std::visit(
      [&](auto& keys) {
        const auto begin = keys.begin() + static_cast<std::ptrdiff_t>(first);
        keys.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
      },
      keys_);
  re_.erase(first, count);
  im_.erase(first, count);
}

void Block::keep(std::span<const std::uint32_t> indices) noexcept {
  std::visit(
      [&](auto& keys) {
        for (std::size_t i = 0; i < indices.size(); ++i) keys[i] = keys[indices[i]];
        keys.erase(keys.begin() + static_cast<std::ptrdiff_t>(indices.size()), keys.end());
      },
      keys_);
  re_.keep(indices);
  im_.keep(indices);
}

Block Block::split(std::size_t i) {
  Block upper = *this;
  upper.erase(0, i);
  upper.raise_base();
  upper.shrink();
  erase(i, size() - i);
  shrink();
  return upper;
}

void Block::raise_base() noexcept {
  if (wide()) return;
  const auto distance = static_cast<std::uint32_t>(first_key() - base_);
  base_ = first_key();
  if (auto* near = std::get_if<std::vector<std::uint32_t>>(&keys_)) {
    for (std::uint32_t& offset : *near) offset -= distance;
  }
}

void Block::move_to(std::int32_t n) noexcept {
  if (auto* keys = std::get_if<std::vector<Lk>>(&keys_)) {
    for (Lk& key : *keys) key.coo[0] = n;
  }
}

void Block::shrink() noexcept {
  std::visit([](auto& keys) { give_back(keys); }, keys_);
  re_.shrink();
  im_.shrink();
}

}  // namespace kov
