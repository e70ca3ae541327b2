#pragma once

#include <charconv>
#include <concepts>
#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>
#include <type_traits>

namespace kov {

/// A large text on its way to where it is drained: written piece by piece into one block of memory,
/// handed on block by block. What was put is drained at the latest by flush(); the destructor drops
/// what is left, so that an unfinished text is not completed by accident.
class TextBuffer {
 public:
  using Drain = std::function<void(std::string_view block)>;

  explicit TextBuffer(Drain drain);

  void put(char c) {
    if (room() == 0) flush();
    buffer_[used_++] = c;
  }
  void put(std::string_view text);
  /// In decimal.
  template <std::integral Integer>
  requires(!std::same_as<Integer, char> && !std::same_as<Integer, bool>) void put(Integer value) {
    if (room() < longest_integer) flush();
    char* const begin = buffer_.get() + used_;
    used_ += static_cast<std::size_t>(std::to_chars(begin, begin + longest_integer, value).ptr - begin);
  }

  /// Hands a large text on without a copy, behind what was put.
  void pass_on(std::string_view text) {
    flush();
    drain_(text);
  }

  /// The parts one behind the other, and a line end (CR LF). Without parts an empty line.
  template <class... Parts>
  void line(const Parts&... parts) {
    (put(parts), ...);
    put(std::string_view("\r\n"));
  }

  void flush();

 private:
  static constexpr std::size_t block_size = std::size_t{1} << 20;
  static constexpr std::size_t longest_integer = 20;

  std::size_t room() const { return block_size - used_; }

  Drain drain_;
  std::unique_ptr<char[]> buffer_;
  std::size_t used_ = 0;
};

}  // namespace kov
