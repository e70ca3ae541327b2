#pragma once

#include <QList>
#include <QObject>
#include <functional>
#include <string_view>
#include <vector>

#include "workbench/command.h"

class QAction;

namespace kov {

/// An action for every row of the command table, from which menus and pages take theirs. An action is named
/// "MENU/ITEM", as scripts name the command.
class CommandActions final : public QObject {
 public:
  struct Owner {
    /// An action was triggered. What the command depends on may have changed since the actions were
    /// refreshed: whether it is enabled is to be asked when edits have been taken.
    std::function<void(const Command& command)> run;
    /// While a cell is edited all commands are enabled: what is typed may be what enables one.
    std::function<bool()> edit_under_way;
  };

  /// The workbench must outlive the actions.
  CommandActions(const Workbench& workbench, Owner owner, QObject* parent);

  /// In the order of the table.
  QList<QAction*> of_menu(std::string_view menu) const;

  /// Captions and enabled states become those of this moment.
  void refresh();

 private:
  struct Row {
    const Command& command;
    QAction* action;
  };

  void add(const Command& command);
  QString caption(const Command& command) const;

  const Workbench& workbench_;
  Owner owner_;
  std::vector<Row> rows_;
};

}  // namespace kov
