#include "app/start_options.h"

#include <string_view>

namespace kov {
namespace {

constexpr const char* help = R"(Usage: kov [FILE]

The workbench for algorithms on multidimensional numerical lattices, with a
window. Opens the data file FILE if one is given; otherwise it reads the
uniform configuration file of the current directory, if there is one.

  --help       show this help and end
  --version    show the version and end

Both must be the only argument. Options of the toolkit, such as -platform and
-style, may stand before a file. F1 in the window opens the help; kovbatch is
the same workbench without a window.
)";

constexpr const char* version = "kov " KOV_VERSION "\n";

}  // namespace

std::optional<std::string> answer_without_window(std::span<const char* const> arguments) {
  if (arguments.size() != 1) return std::nullopt;
  const std::string_view argument = arguments.front();
  if (argument == "--help") return help;
  if (argument == "--version") return version;
  return std::nullopt;
}

std::vector<std::filesystem::path> start_parameters(std::span<const char* const> arguments) {
  return {arguments.begin(), arguments.end()};
}

}  // namespace kov
