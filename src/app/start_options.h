#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kov {

/// What kov writes instead of opening its window: the help when its one argument is --help, the version when
/// it is --version. Nothing for all other arguments, which name data files or are the toolkit's; a file of
/// such a name is opened as ./--help. To be asked before there is an application object, which needs a
/// display.
std::optional<std::string> answer_without_window(std::span<const char* const> arguments);

/// The files that the command line names. Their names are bytes, which need not be text; so they are taken
/// from here, when the toolkit has taken its own options out, and not from the toolkit.
std::vector<std::filesystem::path> start_parameters(std::span<const char* const> arguments);

}  // namespace kov
