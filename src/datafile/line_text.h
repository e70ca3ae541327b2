#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>

namespace kov {

/// A text that is put together by hand, in memory that serves many times.
class LineText {
 public:
  /// Where so many more characters may be put, as far as put_until says. Throws std::bad_alloc, the text as
  /// it was.
  char* room_for(std::size_t size) {
    if (room_ - size_ < size) grow(size_ + size);
    return characters_.get() + size_;
  }
  /// What is before `end` there is put.
  void put_until(const char* end) { size_ = static_cast<std::size_t>(end - characters_.get()); }

  std::string_view text() const { return {characters_.get(), size_}; }
  /// The memory stays.
  void clear() { size_ = 0; }

 private:
  void grow(std::size_t room) {
    room = std::max(room, room_ + room_ / 2);
    auto larger = std::make_unique_for_overwrite<char[]>(room);
    std::copy_n(characters_.get(), size_, larger.get());
    characters_ = std::move(larger);
    room_ = room;
  }

  std::unique_ptr<char[]> characters_;
  std::size_t room_ = 0;
  std::size_t size_ = 0;
};

}  // namespace kov
