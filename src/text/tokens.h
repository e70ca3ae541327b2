#pragma once

#include <string_view>

namespace kov {

/// Walks over the blank-separated tokens of one line; blanks and tabs separate. Looks into the
/// caller's characters, which must outlive it.
class Tokens {
 public:
  explicit Tokens(std::string_view line) : rest_(line) {}

  /// The next token, or an empty view when only blanks are left.
  std::string_view next();

  /// What has not been read yet, leading blanks included.
  std::string_view rest() const { return rest_; }

  /// True when nothing but blanks is left.
  bool at_end() const;

 private:
  std::string_view rest_;
};

/// The text without leading and trailing blanks and control characters (every character up to ' ').
std::string_view trimmed(std::string_view text);

}  // namespace kov
