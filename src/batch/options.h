#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace kov {

/// What the command line of kovbatch asks for.
struct Options {
  enum class Mode { run, help, version };

  Mode mode = Mode::run;
  /// The lines of -c; they run before the scripts.
  std::vector<std::string> lines;
  /// "-" is standard input; it is the only script when neither a line nor a script is given.
  std::vector<std::string> scripts;
  bool yes = false;
  bool keep_going = false;
  bool quiet = false;
  bool every_caption = false;
  bool trace = false;

  friend bool operator==(const Options&, const Options&) = default;
};

/// A command line that cannot be understood.
class option_error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads the arguments behind the program's name. Short options may be grouped ("-yk"), a value may
/// follow its option directly ("-cLINE", "--command=LINE"), options and scripts may be mixed, and "--" ends
/// the options. --help and --version win over whatever follows them. Throws option_error.
Options parse_options(std::span<const char* const> arguments);

/// What --help writes.
std::string help_text();
/// What --version writes.
std::string version_text();

}  // namespace kov
