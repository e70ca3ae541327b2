#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kov {

/// One bit for each part of a column, 64 to a word. Bits behind the last one are 0. insert,
/// erase and &= take a few operations for each word behind the first that changes.
class BitList {
 public:
  /// Bits in a word.
  static constexpr std::size_t word_bits = 64;
  static constexpr std::size_t words_for(std::size_t count) noexcept {
    return (count + word_bits - 1) / word_bits;
  }

  BitList() = default;
  /// So many bits, all alike.
  explicit BitList(std::size_t count, bool bit = false);
  /// The bits of f(i), 0 <= i < count.
  template <class Function>
  static BitList made(std::size_t count, const Function& f) {
    BitList bits(count);
    for (std::size_t i = 0; i < count; ++i) {
      bits.words_[i / word_bits] |= static_cast<std::uint64_t>(static_cast<bool>(f(i))) << i % word_bits;
    }
    return bits;
  }
  /// Which of the numbers are this one, when only the bits of the mask count.
  static BitList equal_to(std::uint64_t number, std::uint64_t mask, std::span<const std::uint64_t> numbers);

  std::size_t size() const noexcept { return size_; }
  /// What the bits take, without what is reserved.
  std::size_t bytes() const noexcept { return words_.size() * sizeof(std::uint64_t); }
  /// Bit i is bit i % 64 of word i / 64.
  const std::uint64_t* words() const noexcept { return words_.data(); }
  std::size_t count_ones() const noexcept;
  /// The first i with bit i set, first <= i < end; end when there is none. end <= size()
  std::size_t next_one(std::size_t first, std::size_t end) const noexcept {
    for (std::size_t i = first; i < end; i = (i / word_bits + 1) * word_bits) {
      const std::uint64_t ahead = words_[i / word_bits] >> i % word_bits;
      if (ahead != 0) return std::min(end, i + static_cast<std::size_t>(std::countr_zero(ahead)));
    }
    return end;
  }

  /// i < size()
  bool operator[](std::size_t i) const noexcept { return (words_[i / word_bits] >> i % word_bits & 1U) != 0; }
  void set(std::size_t i, bool bit) noexcept;
  /// Leaves the bits that are set in both lists, which are of one size.
  BitList& operator&=(const BitList& other) noexcept;
  /// Those of the bits that are set in `which`, of the same size.
  BitList picked(const BitList& which) const;

  /// Gets the memory for one more; insert() then cannot fail.
  void reserve_one();
  /// Before the bit at i, or behind all.
  void insert(std::size_t i, bool bit) noexcept;
  void erase(std::size_t first, std::size_t count) noexcept;
  /// Keeps the bits at the ascending indices only.
  void keep(std::span<const std::uint32_t> indices) noexcept;
  /// Gives reserved memory back where there is much of it and that is possible.
  void shrink() noexcept;

 private:
  /// 64 bits from bit i on, i < size(); those behind the last one are 0.
  std::uint64_t word_at(std::size_t i) const noexcept;
  /// Cuts off what is behind so many.
  void cut(std::size_t count) noexcept;

  std::vector<std::uint64_t> words_;
  std::size_t size_ = 0;
};

}  // namespace kov
