#include "widgets/cell_editor.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

#include "widgets/cell_painter.h"
#include "widgets/menu_keys.h"

namespace kov {

CellEditor::CellEditor(QWidget* parent, Owner owner) : QLineEdit(parent), owner_(std::move(owner)) {
  setFrame(false);
  setTextMargins(cell_margin - 2, 0, cell_margin - 2, 0);  // the line edit itself leaves 2 pixels
  setFocusPolicy(Qt::ClickFocus);                          // by Tab one reaches the grid
  setAutoFillBackground(true);
  hide();
}

void CellEditor::show_fresh(const QString& text) {
  setText(text);
  setAlignment((is_number(text) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  selectAll();
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

void CellEditor::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (!isModified()) selectAll();  // a line edit forgets its selection while the focus is elsewhere
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

// The right button is the grid's.
void CellEditor::contextMenuEvent(QContextMenuEvent* event) { event->accept(); }

}  // namespace kov
