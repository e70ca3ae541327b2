#include "app/command_actions.h"

#include <QAction>
#include <utility>

#include "widgets/qt_text.h"

namespace kov {
namespace {

QString view_text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// As a menu shows it letter by letter.
QString without_mnemonics(const std::string& caption) { return to_qt(caption).replace("&", "&&"); }

}  // namespace

CommandActions::CommandActions(const Workbench& workbench, Owner owner, QObject* parent)
    : QObject(parent), workbench_(workbench), owner_(std::move(owner)) {
  for (const Command& command : commands()) add(command);
  refresh();
}

void CommandActions::add(const Command& command) {
  auto* action = new QAction(this);
  action->setObjectName(view_text(command.menu) + "/" + to_qt(item_name(command.caption)));
  action->setShortcut(QKeySequence(view_text(command.shortcut)));
  rows_.push_back({command, action});
  connect(action, &QAction::triggered, this, [this, &command] { owner_.run(command); });
}

QList<QAction*> CommandActions::of_menu(std::string_view menu) const {
  QList<QAction*> actions;
  for (const Row& row : rows_) {
    if (row.command.menu == menu) actions.append(row.action);
  }
  return actions;
}

QString CommandActions::caption(const Command& command) const {
  if (command.live_caption == nullptr) return view_text(command.caption);
  return without_mnemonics(live_caption(command, workbench_));
}

void CommandActions::refresh() {
  const bool all_enabled = owner_.edit_under_way();
  for (const Row& row : rows_) {
    row.action->setText(caption(row.command));
    row.action->setEnabled(all_enabled || is_enabled(row.command, workbench_));
  }
}

}  // namespace kov
