#pragma once

#include <QLineEdit>
#include <functional>

#include "interact/grid_model.h"

namespace kov {

/// The one editor of a grid, laid over the selected cell, with a frame around it that tells where keys go.
/// Every key press and mouse click is first offered to the grid; the keys of the menus stay the menus'.
class CellEditor final : public QLineEdit {
 public:
  struct Owner {
    /// True: the grid has acted on the key.
    std::function<bool(QKeyEvent&)> takes_key;
    std::function<void(GridClick)> clicked;
    /// A drag that began in the editor is now here, outside it, in the coordinates of the parent.
    std::function<void(QPoint)> dragged_to;
  };

  CellEditor(QWidget* parent, Owner owner);

  /// Shows a text as it is before anything is typed: all of it selected, so that typing replaces it.
  void show_fresh(const QString& text);

 protected:
  bool event(QEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  Owner owner_;
};

}  // namespace kov
