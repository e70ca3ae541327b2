#include "datafile/point_lines.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <span>
#include <string>
#include <vector>

#include "numbers/put_text.h"
#include "text/integers.h"

namespace kov {

namespace {

/// A text of a few characters mostly, which are copied without asking how many.
class FixedText {
 public:
  explicit FixedText(std::string text) : text_(std::move(text)), size_(text_.size()) {
    text_.resize(std::max(size_, at_once));
  }
  std::size_t room() const { return text_.size(); }
  char* put(char* at) const {
    if (size_ <= at_once) {
      std::memcpy(at, text_.data(), at_once);
    } else {
      std::memcpy(at, text_.data(), size_);
    }
    return at + size_;
  }

 private:
  static constexpr std::size_t at_once = 16;
  std::string text_;
  std::size_t size_;
};

/// What stands before the quantities of a row: the coordinates that the frame gives bits are put one by one,
/// what is between them is a text.
class PackedHead {
 public:
  PackedHead(std::string_view key, const Row& row) : frame_(row.frame()) {
    std::string between(key);
    for (const int listed : listed_positions) {
      const auto position = static_cast<std::size_t>(listed);
      between += ' ';
      if (position == 0) {
        between += int_text(row.n());
      } else if (frame_.bits(position) == 0) {
        between += int_text(frame_.low(position));
      } else {
        varying_.push_back({FixedText(std::move(between)), position});
        between.clear();
      }
    }
    behind_ = FixedText(std::move(between) + ' ');
  }

  std::size_t room() const {
    std::size_t sum = behind_.room();
    for (const Varying& field : varying_) sum += field.before.room() + longest_int32_text;
    return sum;
  }

  char* put(char* at, const Block& block, std::size_t i) const {
    const std::uint64_t packed = block.key(i);
    for (const Varying& field : varying_) {
      at = put_int32(field.before.put(at), frame_.coordinate(packed, field.position));
    }
    return behind_.put(at);
  }

 private:
  struct Varying {
    FixedText before;
    std::size_t position;
  };

  const KeyFrame& frame_;
  std::vector<Varying> varying_;
  FixedText behind_{std::string()};
};

/// The same of a row without frame.
class WideHead {
 public:
  explicit WideHead(std::string_view key) : key_(std::string(key) + ' ') {}

  std::size_t room() const { return key_.room() + MaxDimCount * (longest_int32_text + 1); }

  char* put(char* at, const Block& block, std::size_t i) const {
    const Lk& coordinates = block.wide_key(i);
    at = key_.put(at);
    for (const int position : listed_positions) {
      at = put_int32(at, coordinates.coo[static_cast<std::size_t>(position)]);
      *at++ = ' ';
    }
    return at;
  }

 private:
  FixedText key_;
};

template <class Head>
void put_lines(LineText& out, const Head& head, const Block& block) {
  constexpr std::size_t parts_at_once = 256;
  std::array<ratyp, parts_at_once> re;
  std::array<ratyp, parts_at_once> im;
  char* at = out.room_for(block.size() * (head.room() + longest_quantity_text + 2));
  for (std::size_t first = 0; first < block.size(); first += parts_at_once) {
    const std::size_t count = std::min(parts_at_once, block.size() - first);
    block.re().decode(first, std::span(re).first(count));
    block.im().decode(first, std::span(im).first(count));
    for (std::size_t i = 0; i < count; ++i) {
      at = put_text(head.put(at, block, first + i), cotyp(re[i], im[i]));
      std::memcpy(at, "\r\n", 2);
      at += 2;
    }
  }
  out.put_until(at);
}

}  // namespace

void put_point_lines(LineText& out, std::string_view key, const Row& row, const Block& block) {
  if (row.packed()) {
    put_lines(out, PackedHead(key, row), block);
  } else {
    put_lines(out, WideHead(key), block);
  }
}

}  // namespace kov
