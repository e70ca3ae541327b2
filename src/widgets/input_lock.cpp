#include "widgets/input_lock.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace kov {
namespace {

bool is_input(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

}  // namespace

InputLock::InputLock(const QWidget& open_to) : open_to_(open_to) { qApp->installEventFilter(this); }

InputLock::~InputLock() { qApp->removeEventFilter(this); }

bool InputLock::eventFilter(QObject* object, QEvent* event) {
  // A native window only hands on to the widgets in it.
  if (!is_input(event->type()) || object->isWindowType() || is_open_to(object)) return false;
  event->ignore();
  return true;
}

bool InputLock::is_open_to(const QObject* object) const {
  while (object != nullptr && object != &open_to_) object = object->parent();
  return object != nullptr;
}

}  // namespace kov
