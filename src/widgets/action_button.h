#pragma once

#include <QPushButton>

class QAction;

namespace kov {

/// A button that stands for an action: its text and whether it is enabled are the action's, now and later,
/// and a click triggers it. The action outlives it.
class ActionButton final : public QPushButton {
 public:
  explicit ActionButton(QAction& action, QWidget* parent = nullptr);
};

}  // namespace kov
