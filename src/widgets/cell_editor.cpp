#include "widgets/cell_editor.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "widgets/cell_painter.h"
#include "widgets/menu_keys.h"

namespace kov {

CellEditor::CellEditor(QWidget* parent, Owner owner) : QLineEdit(parent), owner_(std::move(owner)) {
  setFrame(false);
  // The line edit itself leaves 2 pixels, and 1 more for the cursor behind the text.
  setTextMargins(cell_margin - 2, 0, cell_margin - 3, 0);
  setFocusPolicy(Qt::ClickFocus);  // by Tab one reaches the grid
  setAutoFillBackground(true);
  setInputMethodHints(Qt::ImhPreferLatin | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
  hide();
}

void CellEditor::show_fresh(const QString& text) {
  setText(text);
  setAlignment(alignment_of(text));
  if (hasFocus()) selectAll();
}

bool CellEditor::event(QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) {
    return QLineEdit::event(event);
  }
  auto& key = static_cast<QKeyEvent&>(*event);
  if (event->type() == QEvent::KeyPress && owner_.takes_key(key)) {
    key.accept();
    return true;
  }
  if (is_editing_key(key)) return QLineEdit::event(event);
  key.ignore();
  return true;
}

/// What dead keys, input methods and keyboards on the screen compose comes as a text. Each of its characters
/// is a key press here, since the grid decides which of them are typed.
void CellEditor::inputMethodEvent(QInputMethodEvent* event) {
  QInputMethodEvent composing(event->preeditString(), event->attributes());
  QLineEdit::inputMethodEvent(&composing);
  for (const char32_t character : event->commitString().toStdU32String()) {
    QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(&character, 1));
    QCoreApplication::sendEvent(this, &key);
  }
  event->accept();
}

void CellEditor::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (!isModified()) selectAll();  // a line edit forgets its selection while the focus is elsewhere
}

void CellEditor::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  if (hasFocus()) painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

void CellEditor::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) return owner_.clicked(GridClick::right);
  QLineEdit::mousePressEvent(event);
  if (event->button() == Qt::LeftButton) owner_.clicked(GridClick::left);
}

void CellEditor::mouseDoubleClickEvent(QMouseEvent* event) {
  QLineEdit::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton) owner_.clicked(GridClick::double_click);
}

void CellEditor::mouseMoveEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  if (event->buttons().testFlag(Qt::LeftButton) && !rect().contains(place)) {
    owner_.dragged_to(mapToParent(place));
  } else {
    QLineEdit::mouseMoveEvent(event);
  }
}

// The right button is the grid's, and so is the key that stands for it.
void CellEditor::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() == QContextMenuEvent::Keyboard) owner_.clicked(GridClick::right);
}

}  // namespace kov
