#pragma once

#include <functional>

class QAction;
class QMenu;
class QMenuBar;

namespace kov {

class CommandActions;

/// Items of the menus that are the window's own and no rows of the command table.
struct WindowItems {
  QMenu* recent_files = nullptr;
  QAction* help_contents = nullptr;
  QAction* help_index = nullptr;
  QAction* help_search = nullptr;
  QAction* user_algorithms = nullptr;
  /// A menu is about to be shown: its items are to become those of this moment.
  std::function<void()> menu_opens;
};

/// The main menu: File, Util, Cmd, Mod, Alg and Help, then the items that stand in the bar itself.
void build_main_menu(QMenuBar& bar, CommandActions& actions, const WindowItems& own);

}  // namespace kov
