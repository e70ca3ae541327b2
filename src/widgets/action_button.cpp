#include "widgets/action_button.h"

#include <QAction>

namespace kov {

ActionButton::ActionButton(QAction& action, QWidget* parent) : QPushButton(parent) {
  const auto follow = [this, &action] {
    setText(action.text());
    setEnabled(action.isEnabled());
  };
  follow();
  connect(&action, &QAction::changed, this, follow);
  connect(this, &QPushButton::clicked, &action, &QAction::trigger);
}

}  // namespace kov
