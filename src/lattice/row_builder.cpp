#include "lattice/row_builder.h"

#include <algorithm>
#include <utility>

namespace kov {
namespace {

KeyBox wide_box_of(const Block& block) noexcept {
  KeyBox box{block.wide_key(0), block.wide_key(0)};
  for (std::size_t i = 1; i < block.size(); ++i) box.include(block.wide_key(i));
  return box;
}

KeyBox packed_box_of(const Block& block, const KeyFrame& frame, std::int32_t n) noexcept {
  constexpr std::size_t keys_at_once = 512;
  std::array<std::uint64_t, keys_at_once> keys;
  KeyBox box{frame.unpack(block.first_key(), n), frame.unpack(block.first_key(), n)};
  for (std::size_t first = 0; first < block.size(); first += keys_at_once) {
    const auto part = std::span(keys).first(std::min(keys_at_once, block.size() - first));
    block.decode_keys(first, part);
    box.include(frame.box_of(part, n));
  }
  return box;
}

}  // namespace

void RowBuilder::append(const Lk& key, const cotyp& q) {
  if (row_.packed()) {
    append(row_.frame().pack(key), q);
    return;
  }
  wide_.push_back(key);
  wide_.back().coo[0] = row_.n();
  take(q);
}

void RowBuilder::append(std::uint64_t packed, const cotyp& q) {
  packed_.push_back(packed);
  take(q);
}

void RowBuilder::append(Block&& block, const KeyBox& box) {
  flush();
  row_.append(std::move(block), box);
}

void RowBuilder::take(const cotyp& q) {
  re_.push_back(q.re);
  im_.push_back(q.im);
  if (re_.size() == block_capacity) flush();
}

void RowBuilder::flush() {
  if (re_.empty()) return;
  if (row_.packed()) {
    Block block(packed_, Column::of(re_), Column::of(im_));
    const KeyBox box = packed_box_of(block, row_.frame(), row_.n());
    row_.append(std::move(block), box);
  } else {
    Block block(wide_, Column::of(re_), Column::of(im_));
    const KeyBox box = wide_box_of(block);
    row_.append(std::move(block), box);
  }
  packed_.clear();
  wide_.clear();
  re_.clear();
  im_.clear();
}

Row RowBuilder::finish() {
  flush();
  return std::move(row_);
}

}  // namespace kov
