#include "lattice/bit_list.h"

#include "lattice/spare_memory.h"
#include "numbers/vector_dispatch.h"

namespace kov {
namespace {

/// The lowest count bits of a word, count < 64.
constexpr std::uint64_t low_bits(std::size_t count) noexcept { return (std::uint64_t{1} << count) - 1; }

}  // namespace

BitList::BitList(std::size_t count, bool bit)
    : words_(words_for(count), bit ? ~std::uint64_t{0} : 0), size_(count) {
  cut(count);
}

BitList BitList::equal_to(std::uint64_t number, std::uint64_t mask, std::span<const std::uint64_t> numbers) {
  BitList bits(numbers.size());
  run_loop([&]() KOV_INLINE {
    for (std::size_t first = 0; first < numbers.size(); first += word_bits) {
      const std::size_t count = std::min(word_bits, numbers.size() - first);
      std::uint64_t word = 0;
      for (std::size_t i = 0; i < count; ++i) {
        word |= static_cast<std::uint64_t>((numbers[first + i] & mask) == number) << i;
      }
      bits.words_[first / word_bits] = word;
    }
  });
  return bits;
}

std::size_t BitList::count_ones() const noexcept {
  std::size_t ones = 0;
  for (const std::uint64_t word : words_) ones += static_cast<std::size_t>(std::popcount(word));
  return ones;
}

void BitList::set(std::size_t i, bool bit) noexcept {
  const std::uint64_t mask = std::uint64_t{1} << i % word_bits;
  std::uint64_t& word = words_[i / word_bits];
  word = bit ? word | mask : word & ~mask;
}

BitList& BitList::operator&=(const BitList& other) noexcept {
  for (std::size_t word = 0; word < words_.size(); ++word) words_[word] &= other.words_[word];
  return *this;
}

BitList BitList::picked(const BitList& which) const {
  BitList bits(which.count_ones());
  std::size_t taken = 0;
  for (std::size_t i = which.next_one(0, size_); i < size_; i = which.next_one(i + 1, size_)) {
    bits.set(taken++, (*this)[i]);
  }
  return bits;
}

void BitList::reserve_one() {
  if (words_for(size_ + 1) > words_.size()) kov::reserve_one(words_);
}

void BitList::insert(std::size_t i, bool bit) noexcept {
  if (words_for(size_ + 1) > words_.size()) words_.push_back(0);
  ++size_;
  const std::size_t first = i / word_bits;
  for (std::size_t word = words_.size() - 1; word > first; --word) {
    words_[word] = words_[word] << 1U | words_[word - 1] >> (word_bits - 1);
  }
  const std::uint64_t below = low_bits(i % word_bits);
  words_[first] = (words_[first] & below) | (words_[first] & ~below) << 1U;
  set(i, bit);
}

void BitList::erase(std::size_t first, std::size_t count) noexcept {
  const std::size_t left = size_ - count;
  std::size_t word = first / word_bits;
  if (word * word_bits < left) {
    const std::uint64_t below = low_bits(first % word_bits);
    words_[word] = (words_[word] & below) | (word_at(word * word_bits + count) & ~below);
    for (++word; word * word_bits < left; ++word) words_[word] = word_at(word * word_bits + count);
  }
  cut(left);
}

void BitList::keep(std::span<const std::uint32_t> indices) noexcept {
  for (std::size_t i = 0; i < indices.size(); ++i) set(i, (*this)[indices[i]]);
  cut(indices.size());
}

void BitList::shrink() noexcept { give_back(words_); }

std::uint64_t BitList::word_at(std::size_t i) const noexcept {
  const std::size_t word = i / word_bits;
  const std::size_t shift = i % word_bits;
  if (shift == 0) return words_[word];
  const std::uint64_t above = word + 1 < words_.size() ? words_[word + 1] : 0;
  return words_[word] >> shift | above << (word_bits - shift);
}

void BitList::cut(std::size_t count) noexcept {
  size_ = count;
  words_.erase(words_.begin() + static_cast<std::ptrdiff_t>(words_for(count)), words_.end());
  if (count % word_bits != 0) words_.back() &= low_bits(count % word_bits);
}

}  // namespace kov
