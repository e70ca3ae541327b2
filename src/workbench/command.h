#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "interact/user.h"
#include "workbench/workbench.h"

namespace kov {

/// One command: a row of the table from which kov builds its menus and in which kovbatch finds what a
/// line names.
struct Command {
  /// "File", "Util", "Cmd", "Mod", "Alg", "Help", "Bar" (items of the menu bar itself), or the page
  /// whose button it is: "Algadd", "Sums1", "Graph1", "Graph2".
  std::string_view menu;
  /// As the menu is built, "&" included.
  std::string_view caption;
  /// "Ctrl+Shift+S"; empty without one.
  std::string_view shortcut;
  /// Asks, operates, says what changed.
  void (*run)(Workbench& workbench, User user);
  /// Null: always enabled.
  bool (*enabled)(const Workbench& workbench) = nullptr;
  /// Null: the caption without "&".
  std::string (*live_caption)(const Workbench& workbench) = nullptr;
};

/// Every command, in the order of the menus.
std::span<const Command> commands();

bool is_enabled(const Command& command, const Workbench& workbench);
std::string live_caption(const Command& command, const Workbench& workbench);

/// The item's name in scripts: the caption without "&", without a trailing "=", ":" or blank, each run
/// of blanks as one.
std::string item_name(std::string_view caption);

/// Null when there is no such command. Upper and lower case count.
const Command* find_command(std::string_view menu, std::string_view item);

/// Runs a command. The one place that catches what escapes from it: the error is shown, the program
/// goes on.
void run_command(const Command& command, Workbench& workbench, User user);
/// The same for an operation that is no row of the table; math errors name it.
void run_operation(const std::string& name, const std::function<void()>& operation,
                   const Workbench& workbench, User user);

}  // namespace kov
