#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string_view>

#include "datafile/unique_fd.h"

namespace kov {

/// The lines of a text file, read in large blocks. A line ends with LF or CR LF; the last one also
/// with the file. Any other byte, NUL included, is part of a line. Takes time linear in the size of
/// the file and memory for one block or the longest line.
class LineSource {
 public:
  /// Opens the file; throws file_error when it cannot be opened or is a folder.
  explicit LineSource(const std::filesystem::path& path);

  /// Gives the next line without its line end; false when there is none. The line is valid until the
  /// next call. Throws file_error when the file cannot be read on.
  bool next(std::string_view& line);

 private:
  std::string_view take(std::size_t line_end, std::size_t next_begin);
  void make_room();
  void fill();

  std::filesystem::path path_;
  UniqueFd file_;
  std::size_t capacity_;
  std::unique_ptr<char[]> buffer_;
  // What was read and not yet given out: buffer_[begin_] ... buffer_[end_ - 1].
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool at_end_of_file_ = false;
};

}  // namespace kov
