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
  using Run = std::function<void(const Command& command)>;

  /// The workbench must outlive the actions. run is called with a command that is enabled at that moment.
  CommandActions(const Workbench& workbench, Run run, QObject* parent);

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
  void trigger(const Row& row);
  QString caption(const Command& command) const;

  const Workbench& workbench_;
  Run run_;
  std::vector<Row> rows_;
};

}  // namespace kov
