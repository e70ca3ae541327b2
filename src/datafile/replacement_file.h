#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "datafile/unique_fd.h"

namespace kov {

/// Writes a file anew without ever endangering the old one: the text goes to a new file in the same
/// folder, and commit() puts that in the old one's place. Until then the old file is as it was, and a
/// ReplacementFile that goes without commit() leaves no trace. What a killed program left behind is
/// removed by the next one for the same file; a new file is locked while its program lives, so nobody
/// removes one in use.
///
/// A symbolic link stays one: the file that it leads to is replaced. The new file gets the old one's
/// permissions (and, as far as the system lets, its owner). All functions throw file_error.
class ReplacementFile {
 public:
  /// Refuses a path that is anything but an ordinary file, or is not writable: replacing it would need
  /// the folder's permission alone.
  explicit ReplacementFile(const std::filesystem::path& path);
  ReplacementFile(const ReplacementFile&) = delete;
  ReplacementFile& operator=(const ReplacementFile&) = delete;

  void write(std::string_view text);
  /// Flushes the text to the disk, renames, flushes the folder.
  void commit();

 private:
  /// Removes the file of its name when it goes.
  struct TemporaryName {
    ~TemporaryName();
    std::filesystem::path path;
  };

  void create();
  void take_permissions_of_old_file();
  /// Has the disk write while the text still comes.
  void begin_flushing();
  void flush_folder() const;

  std::filesystem::path target_;
  TemporaryName temporary_;
  UniqueFd file_;
  /// Characters written, and how many of them the disk was asked to take already.
  std::int64_t written_ = 0;
  std::int64_t flushing_ = 0;
};

}  // namespace kov
