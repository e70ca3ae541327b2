#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "datafile/document.h"
#include "datafile/point_intake.h"
#include "text/integers.h"
#include "text/tokens.h"

namespace kov {

/// nelast of a configuration-only read and of a read of everything.
inline constexpr std::int32_t configuration_only = lowest_int;
inline constexpr std::int32_t every_step = highest_int;

/// What a line brought.
enum class LineResult { other = 0, point = 1, stop = 2 };

/// Reads lines (without their line ends) into a document, the points among them at the latest by finish().
class LineReader {
 public:
  /// nelast: the largest step whose points are read, or configuration_only.
  /// file_chosen: whether a configuration-only read takes the entries of the uniform configuration
  /// alone.
  LineReader(Document& document, std::int32_t nelast, bool file_chosen);

  /// Returns the message, empty on success; a line that fails changes nothing.
  std::string read_line(std::string_view line, LineResult& result);
  /// Behind the last line.
  void finish() { points_.finish(); }

  /// The point count that the file announced; 0 before.
  std::int64_t announced_points() const { return announced_points_; }

 private:
  std::string read_whole_file_line(std::string_view key, Tokens& fields, LineResult& result);
  std::string read_announcement(Tokens& fields);
  std::string read_point(Tokens& fields, LineResult& result);
  std::string take_point(const Lk& key, const cotyp& quantity, LineResult& result);

  Document& document_;
  std::int32_t nelast_;
  bool file_chosen_;
  /// What a point's line begins with when the program wrote it.
  std::string point_key_;
  PointIntake points_;
  std::int64_t announced_points_ = 0;
};

}  // namespace kov
