#pragma once

#include <QObject>
#include <QProxyStyle>
#include <functional>

#include "interact/grid_model.h"

class QAbstractButton;
class QMouseEvent;
class QPoint;
class QTableView;

namespace kov {

/// Headings keep the distance between a text and the edges that cells keep, so that a column's heading stands
/// right above its numbers.
class HeadingStyle final : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

/// What a table's headings do beyond showing texts: the corner shows the one of cell 0,0, and mouse and tool
/// tips reach the grid. They are never selected.
class GridHeadings final : public QObject {
 public:
  struct Owner {
    std::function<QString()> corner_text;
    /// The right button, or a double click of the left one, on any heading.
    std::function<void(GridClick)> clicked;
    /// The mouse rests on a heading, at a place of the screen.
    std::function<void(GridCell heading, QPoint place)> asks_tip;
  };

  GridHeadings(QTableView& table, Owner owner);

  void repaint_visible();

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void paint_corner();
  bool click(const QMouseEvent& event);
  GridCell heading_at(const QObject* object, QPoint place) const;

  QTableView& table_;
  HeadingStyle style_;
  QAbstractButton* corner_;
  Owner owner_;
};

}  // namespace kov
