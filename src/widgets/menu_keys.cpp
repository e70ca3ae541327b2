#include "widgets/menu_keys.h"

#include <QEvent>
#include <QKeyEvent>
#include <QObject>
#include <QWidget>

namespace kov {
namespace {

bool edits_with_ctrl(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_C:
    case Qt::Key_V:
      return (event.modifiers() & Qt::ShiftModifier) == 0;
    case Qt::Key_Z:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
    case Qt::Key_Insert:
      return true;
    default:
      return false;
  }
}

class MenuKeysFirst final : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
    if (is_editing_key(static_cast<QKeyEvent&>(*event))) return false;
    event->ignore();
    return true;
  }
};

}  // namespace

bool is_editing_key(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  if (modifiers & (Qt::AltModifier | Qt::MetaModifier)) return false;
  return (modifiers & Qt::ControlModifier) == 0 || edits_with_ctrl(event);
}

void give_keys_to_menus(QWidget& text_widget) {
  text_widget.installEventFilter(new MenuKeysFirst(&text_widget));
}

}  // namespace kov
