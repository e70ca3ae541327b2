#include "widgets/key_events.h"

#include <QKeyEvent>

namespace kov {
namespace {

using Name = GridKey::Name;

std::optional<Name> named(int key) {
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Name::enter;
    case Qt::Key_Escape:
      return Name::escape;
    case Qt::Key_Tab:
      return Name::tab;
    case Qt::Key_Backspace:
      return Name::backspace;
    case Qt::Key_Up:
      return Name::up;
    case Qt::Key_Down:
      return Name::down;
    case Qt::Key_PageUp:
      return Name::page_up;
    case Qt::Key_PageDown:
      return Name::page_down;
    default:
      return std::nullopt;
  }
}

std::optional<GridKey> with_ctrl(int key) {
  if (key == Qt::Key_PageUp) return GridKey{Name::first_page};
  if (key == Qt::Key_PageDown) return GridKey{Name::last_page};
  return std::nullopt;
}

bool moves(Name name) {
  return name == Name::up || name == Name::down || name == Name::page_up || name == Name::page_down;
}

}  // namespace

std::optional<GridKey> grid_key(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  if (modifiers & (Qt::AltModifier | Qt::MetaModifier)) return std::nullopt;
  const bool shift = modifiers.testFlag(Qt::ShiftModifier);
  if (modifiers & Qt::ControlModifier) return shift ? std::nullopt : with_ctrl(event.key());
  if (const auto name = named(event.key())) {
    if (shift && moves(*name)) return std::nullopt;
    return GridKey{*name};
  }
  const QString text = event.text();
  if (text.isEmpty() || !text.front().isPrint()) return std::nullopt;
  return GridKey::of(text.toUtf8().front());
}

}  // namespace kov
