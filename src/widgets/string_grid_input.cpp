// Keys and mouse of a grid, and its editor.
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>
#include <algorithm>

#include "widgets/cell_editor.h"
#include "widgets/cell_painter.h"
#include "widgets/grid_adapter.h"
#include "widgets/key_events.h"
#include "widgets/menu_keys.h"
#include "widgets/qt_text.h"
#include "widgets/string_grid.h"

namespace kov {
namespace {

bool is_plain(const QKeyEvent& event) {
  return (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
}

bool is_typed_text(const QKeyEvent& event) {
  return is_editing_key(event) && !event.text().isEmpty() && event.text().front().isPrint();
}

bool moves_between_rows(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return true;
    case Qt::Key_Home:
    case Qt::Key_End:
      return event.modifiers().testFlag(Qt::ControlModifier);
    default:
      return false;
  }
}

/// The Menu key, or what the desktop has in its place.
bool asks_for_menu_by_key(const QEvent& event) {
  return event.type() == QEvent::ContextMenu &&
         static_cast<const QContextMenuEvent&>(event).reason() == QContextMenuEvent::Keyboard;
}

bool moves_between_columns(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Home || key == Qt::Key_End;
}

}  // namespace

bool StringGrid::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<QKeyEvent&>(*event);
    const bool own = grid_key(key) || key.matches(QKeySequence::Copy) || key.matches(QKeySequence::Paste);
    event->setAccepted(own);
    return own;
  }
  if (event->type() == QEvent::KeyPress) {
    event->setAccepted(take_key(static_cast<QKeyEvent&>(*event)));
    return true;
  }
  if (asks_for_menu_by_key(*event)) {
    click(GridClick::right);
    return true;
  }
  return QTableView::event(event);
}

bool StringGrid::take_key(QKeyEvent& event) {
  if (event.matches(QKeySequence::Copy) && copies_cells()) {
    copy();
    return true;
  }
  if (model_takes(event) || take_key_of_grid(event)) return true;
  return editor_->isVisible() ? move_out_of_editor(event) : start_edit(event);
}

bool StringGrid::model_takes(const QKeyEvent& event) {
  const auto key = grid_key(event);
  bool taken = key.has_value();  // and one at which the model fails is not the grid's either
  if (key) tell([&] { taken = model_.key(*key); });
  return taken;
}

/// What the model has left, and means the same with the editor open and without one.
bool StringGrid::take_key_of_grid(QKeyEvent& event) {
  if (moves_between_rows(event)) return move_by(event);
  if (!is_plain(event)) return false;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      take_edit();
      return true;
    case Qt::Key_Escape:
      return give_up_edit();
    case Qt::Key_Tab:
      return move_by_tab(true);
    case Qt::Key_Backtab:
      return move_by_tab(false);
    case Qt::Key_F2:
      return open_editor_within_text();
    case Qt::Key_F10:
      if (event.modifiers() != Qt::ShiftModifier) return false;
      click(GridClick::right);
      return true;
    default:
      return false;
  }
}

bool StringGrid::move_by(QKeyEvent& event) {
  QTableView::keyPressEvent(&event);
  return true;
}

/// Left and Right move within the text, and out of it at its ends or as long as nothing is typed.
bool StringGrid::move_out_of_editor(QKeyEvent& event) {
  const bool left = event.key() == Qt::Key_Left;
  if (!is_plain(event) || (!left && event.key() != Qt::Key_Right)) return false;
  const bool untouched = !model_.edited() && editor_->selectedText() == editor_->text();
  const int end = left ? 0 : static_cast<int>(editor_->text().size());
  const bool at_end = !editor_->hasSelectedText() && editor_->cursorPosition() == end &&
                      !event.modifiers().testFlag(Qt::ShiftModifier);
  return (untouched || at_end) && move_by(event);
}

bool StringGrid::start_edit(QKeyEvent& event) {
  if (moves_between_columns(event.key())) return move_by(event);
  if (event.matches(QKeySequence::Paste)) {
    if (!open_editor()) return false;
    editor_->paste();
    return true;
  }
  if (is_typed_text(event)) return open_editor_with(event.text());
  if (!is_plain(event)) return false;
  const bool erases = event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete;
  return erases && open_editor_with(QString());
}

bool StringGrid::move_by_tab(bool forward) {
  bool stays = true;
  tell([&] { stays = model_.select_next(forward); });
  if (!stays) focusNextPrevChild(forward);
  return true;
}

void StringGrid::go_to(const QModelIndex& index) {
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
}

/// A part of one text that is marked in the editor is what Ctrl+C means then.
bool StringGrid::copies_cells() const {
  if (!editor_->isVisible() || !editor_->hasSelectedText()) return true;
  const QItemSelection cells = selectionModel()->selection();
  return !cells.isEmpty() && (cells.first().width() > 1 || cells.first().height() > 1);
}

void StringGrid::mousePressEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() == Qt::RightButton) {
    if (index.isValid() && !selectionModel()->isSelected(index)) go_to(index);
    return click(GridClick::right);
  }
  QTableView::mousePressEvent(event);
  if (event->button() == Qt::LeftButton && index.isValid()) click(GridClick::left);
}

void StringGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  QTableView::mouseDoubleClickEvent(event);
  if (event->button() != Qt::LeftButton || !indexAt(event->position().toPoint()).isValid()) return;
  click(GridClick::double_click);
  if (opens_on_double_click_) open_editor();
}

/// At the selected cell: a click on another one has selected that before.
void StringGrid::click(GridClick kind) {
  tell([&] { model_.click(kind, model_.selected()); });
}

void StringGrid::extend_selection(QPoint place) {
  const QModelIndex here = currentIndex();
  const QModelIndex there = indexAt(place);
  if (!here.isValid() || !there.isValid()) return;
  const auto [top, bottom] = std::minmax({here.row(), there.row()});
  const auto [left, right] = std::minmax({here.column(), there.column()});
  selectionModel()->select({adapter_->index(top, left), adapter_->index(bottom, right)},
                           QItemSelectionModel::ClearAndSelect);
}

bool StringGrid::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QTableView::viewportEvent(event);
  const auto& help = static_cast<QHelpEvent&>(*event);
  const QModelIndex index = indexAt(help.pos());
  if (index.isValid()) {
    show_tip(adapter_->cell_of(index), help.globalPos(), columnWidth(index.column()));
  } else {
    QToolTip::hideText();
  }
  return true;
}

void StringGrid::show_tip(GridCell cell, QPoint place, int width) {
  QString tip = tool_tip_ ? tool_tip_(cell) : QString();
  if (tip.isEmpty()) {
    const QString text = to_qt(model_.text(cell));
    if (fontMetrics().horizontalAdvance(text) + 2 * cell_margin > width) tip = text;
  }
  QToolTip::showText(place, tip, this);
}

bool StringGrid::wants_editor() const {
  if (!adapter_->index_of(model_.selected()).isValid() || !model_.editable(model_.selected())) return false;
  return opened_ || model_.edited() || model_.always_shows_editor();
}

bool StringGrid::open_editor() {
  if (!model_.editable(model_.selected())) return false;
  opened_ = true;
  place_editor();
  return true;
}

bool StringGrid::open_editor_with(const QString& text) {
  if (!open_editor()) return false;
  tell([&] { model_.edit(from_qt(text)); });
  return true;
}

/// With the cursor behind the text, where Left and Right then move.
bool StringGrid::open_editor_within_text() {
  if (!open_editor()) return false;
  editor_->deselect();
  editor_->end(false);
  return true;
}

bool StringGrid::give_up_edit() {
  if (!opened_ && !model_.edited()) return false;
  opened_ = false;
  tell([this] { model_.give_up_edit(); });
  return true;
}

void StringGrid::place_editor() {
  if (!wants_editor()) return close_editor();
  editor_->setGeometry(visualRect(adapter_->index_of(model_.selected())));
  fill_editor();
  editor_->show();
  if (hasFocus()) editor_->setFocus();
}

/// Fresh texts replace what is shown; a text that is being typed stays as it is.
void StringGrid::fill_editor() {
  const QString text = to_qt(model_.editor_text());
  const bool moved = !(editor_cell_ == model_.selected()) || editor_->isHidden();
  editor_cell_ = model_.selected();
  if (model_.edited()) {
    if (text != editor_->text()) editor_->setText(text);
  } else if (moved || editor_->isModified() || text != editor_->text()) {
    editor_->show_fresh(text);
  }
}

void StringGrid::close_editor() {
  if (editor_->isHidden()) return;
  if (editor_->hasFocus()) setFocus();
  editor_->hide();
}

}  // namespace kov
