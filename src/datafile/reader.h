#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "datafile/document.h"
#include "interact/user.h"

namespace kov {

/// nelast of a configuration-only read and of a read of everything.
inline constexpr std::int32_t configuration_only = lowest_int;
inline constexpr std::int32_t every_step = highest_int;

/// What a line brought.
enum class LineResult { other = 0, point = 1, stop = 2 };

/// Reads one line (without its line end) into the document. Returns the message, empty on success; a
/// line that fails changes nothing.
class LineReader {
 public:
  /// file_chosen: whether a configuration-only read takes the entries of the uniform configuration
  /// alone.
  LineReader(Document& document, std::int32_t nelast, bool file_chosen);

  std::string read_line(std::string_view line, LineResult& result);

  /// The point count that the file announced; 0 before.
  std::int64_t announced_points() const { return announced_points_; }

 private:
  Document& document_;
  std::int32_t nelast_;
  bool file_chosen_;
  std::int64_t announced_points_ = 0;
};

enum class ReadOutcome { completed, aborted, not_opened };

/// Reads the file into the document. A file that cannot be opened is reported and changes nothing. Any
/// line's message is asked about from warning level 2 on; an aborted read leaves the start-up state
/// (a configuration-only read: the default catalogue, the rest untouched). A completed read of a whole
/// file sets current.chosen. Break ends the read like an answer No. When memory runs out, the document is left
/// as by an abort and std::bad_alloc passes on.
ReadOutcome read_data_file(const std::filesystem::path& path, Document& document, CurrentFile& current,
                           std::int32_t nelast, const WindowFacts& window, User user);

}  // namespace kov
