#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kov {

/// A line that is to be carried out, and where it comes from.
struct SourceLine {
  /// The script as it was named, "-" for standard input, "-c" for the command line.
  std::string script;
  /// From 1 on; for "-c" the number of the option.
  std::size_t number = 1;
  /// Without leading and trailing blanks.
  std::string text;

  /// "SCRIPT:NUMBER: LINE", as reports name it.
  std::string place() const;
  friend bool operator==(const SourceLine&, const SourceLine&) = default;
};

/// A script that cannot be read; the text names it and the reason.
class script_error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The lines of a script's text that say something: empty lines and remarks (";") are left out, a byte
/// order mark is skipped.
std::vector<SourceLine> script_lines(const std::string& script, std::string_view text);

/// Everything in a file, or in standard input for "-". Throws script_error. An interrupt while waiting
/// for input ends the input.
std::string read_script(const std::string& script);

}  // namespace kov
