#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace kov {

/// Thins the captions of a long operation for a log: ten a second at most, the first and the last of an
/// operation always. Knows no clock; the caller says what time it is.
class CaptionPace {
 public:
  using Time = std::chrono::steady_clock::time_point;
  static constexpr std::chrono::milliseconds interval{100};

  /// True when the caption is to be reported now; otherwise it is kept until a later one replaces it.
  bool passes(const std::string& caption, Time now);

  /// Ends the operation; gives its last caption when that one is still kept. The next one is a first.
  std::optional<std::string> end();

 private:
  std::optional<Time> last_passed_;
  std::optional<std::string> kept_;
};

}  // namespace kov
