#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace kov {

/// Walks over a text eight characters at a time, for the little of the grammar of numbers that programs
/// write. Characters stand in a word as in memory of a little-endian machine, the first in the lowest byte.
class WordScanner {
 public:
  /// The text outlives the scanner.
  explicit WordScanner(std::string_view text)
      : begin_(text.data()), at_(begin_), end_(begin_ + text.size()) {}

  bool at_end() const { return at_ == end_; }
  /// The next character, NUL at the end.
  char peek() const { return at_ == end_ ? '\0' : *at_; }
  void skip(std::size_t count) { at_ += count; }
  /// Skips the character if it is the next one.
  bool take(char c) {
    const bool taken = peek() == c;
    at_ += taken ? 1 : 0;
    return taken;
  }
  /// The next eight characters, NULs behind the end.
  std::uint64_t word() const {
    const auto left = static_cast<std::size_t>(end_ - at_);
    if (left >= 8) return load(at_);
    if (end_ - begin_ < 8) return load_some(left);
    return left == 0 ? 0 : load(end_ - 8) >> (64 - 8 * left);
  }

  /// Appends the digits that come next to a number of `count` digits, which grows with them. Gives their
  /// number, or 0 as well when there are more than 19 in all.
  std::size_t digits(std::uint64_t& number, std::size_t& count) {
    std::size_t taken = 0;
    for (;;) {
      const std::uint64_t next = word();
      const std::size_t length = digit_count(next);
      taken += length;
      count += length;
      if (count > 19) return 0;
      if (length != 0) number = number * powers[length] + digits_value(next, length);
      at_ += length;
      if (length < 8) return taken;
    }
  }

  /// The number of digits that a word begins with.
  static std::size_t digit_count(std::uint64_t word) {
    const std::uint64_t x = word ^ 0x3030303030303030;
    // Has the highest bit of a byte set where it is no digit; behind the first of them it may be wrong.
    const std::uint64_t others = (x | (x + 0x7676767676767676)) & 0x8080808080808080;
    return static_cast<std::size_t>(std::countr_zero(others)) / 8;
  }
  /// The value of its first 1 ... 8 characters, which are digits: pairs, fours and eights of them are put
  /// together at once.
  static std::uint64_t digits_value(std::uint64_t word, std::size_t count) {
    word <<= 64 - 8 * count;
    word = (word & 0x0f0f0f0f0f0f0f0f) * 2561 >> 8;
    word = (word & 0x00ff00ff00ff00ff) * 6553601 >> 16;
    return (word & 0x0000ffff0000ffff) * 42949672960001 >> 32;
  }

 private:
  static constexpr std::uint64_t powers[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};

  static std::uint64_t load(const char* at) {
    std::uint64_t word = 0;
    std::memcpy(&word, at, sizeof word);
    if constexpr (std::endian::native == std::endian::big) word = __builtin_bswap64(word);
    return word;
  }
  std::uint64_t load_some(std::size_t count) const {
    std::uint64_t word = 0;
    for (std::size_t i = count; i > 0; --i) word = word << 8 | static_cast<unsigned char>(at_[i - 1]);
    return word;
  }

  const char* begin_;
  const char* at_;
  const char* end_;
};

}  // namespace kov
