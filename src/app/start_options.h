#pragma once

#include <optional>
#include <span>
#include <string>

namespace kov {

/// What kov writes instead of opening its window: the help when its one argument is --help, the version when
/// it is --version. Nothing for all other arguments, which name data files or are the toolkit's; a file of
/// such a name is opened as ./--help. To be asked before there is an application object, which needs a
/// display.
std::optional<std::string> answer_without_window(std::span<const char* const> arguments);

}  // namespace kov
