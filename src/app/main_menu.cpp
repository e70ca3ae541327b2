#include "app/main_menu.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSet>

#include "app/command_actions.h"

namespace kov {
namespace {

struct MenuTitle {
  const char* menu;
  /// The letters after "&" differ among all items of the bar.
  const char* caption;
};

// clang-format off
constexpr MenuTitle titles[] = {
    {"File", "&File"},
    {"Util", "&Util"},
    {"Cmd",  "Cm&d"},
    {"Mod",  "&Mod"},
    {"Alg",  "Al&g"},
    {"Help", "&Help"},
};
// clang-format on

/// A line stands above each of these.
bool begins_group(const QAction& action) {
  static const QSet<QString> first = {"File/Read new Cfg",
                                      "File/Save",
                                      "File/Save Cfg",
                                      "File/C. Warnlevel",
                                      "File/Exit",
                                      "Cmd/Delete All",
                                      "Cmd/Del nlast",
                                      "Cmd/Ch. last b. 0",
                                      "Cmd/Choose Last",
                                      "Mod/Init For Test",
                                      "Mod/Set Default Offset",
                                      "Mod/All to Float",
                                      "Mod/Cross Product",
                                      "Alg/Change Algadd Nr",
                                      "Alg/Algadd with del",
                                      "Help/State"};
  return first.contains(action.objectName());
}

void fill(QMenu& menu, const QList<QAction*>& actions) {
  for (QAction* action : actions) {
    if (begins_group(*action)) menu.addSeparator();
    menu.addAction(action);
  }
}

QAction* item(const QMenu& menu, const QString& name) {
  for (QAction* action : menu.actions()) {
    if (action->objectName() == name) return action;
  }
  return nullptr;
}

void add_own_items(QMenu& file, QMenu& help, const WindowItems& own) {
  file.insertMenu(item(file, "File/Read again"), own.recent_files);
  QAction* state = item(help, "Help/State");
  QAction* line = state == nullptr ? nullptr : help.actions().at(help.actions().indexOf(state) - 1);
  for (QAction* action : {own.help_contents, own.help_index, own.help_search}) {
    help.insertAction(line, action);
  }
}

/// The captions of the items in the bar change; their keys do not.
QString with_bar_mnemonic(const QString& caption) {
  if (caption.startsWith("S1:")) return "S&1" + caption.mid(2);
  return "&" + caption;
}

void add_bar_item(QMenuBar& bar, QAction* command) {
  auto* item = bar.addAction(with_bar_mnemonic(command->text()));
  item->setObjectName(command->objectName() + " in the bar");
  QObject::connect(item, &QAction::triggered, command, &QAction::trigger);
  QObject::connect(command, &QAction::changed, item, [item, command] {
    item->setText(with_bar_mnemonic(command->text()));
    item->setEnabled(command->isEnabled());
  });
}

}  // namespace

void build_main_menu(QMenuBar& bar, CommandActions& actions, const WindowItems& own) {
  QMenu* file = nullptr;
  QMenu* help = nullptr;
  for (const MenuTitle& title : titles) {
    QMenu* menu = bar.addMenu(title.caption);
    menu->setObjectName(title.menu);
    fill(*menu, actions.of_menu(title.menu));
    QObject::connect(menu, &QMenu::aboutToShow, &actions, own.menu_opens);
    if (QString(title.menu) == "File") file = menu;
    if (QString(title.menu) == "Help") help = menu;
  }
  add_own_items(*file, *help, own);
  for (QAction* command : actions.of_menu("Bar")) add_bar_item(bar, command);
  bar.addAction(own.user_algorithms);
}

}  // namespace kov
