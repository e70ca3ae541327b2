#include "widgets/grid_headings.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionHeader>
#include <QTableView>
#include <utility>

#include "widgets/cell_painter.h"

namespace kov {

int HeadingStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  return metric == PM_HeaderMargin ? cell_margin : QProxyStyle::pixelMetric(metric, option, widget);
}

GridHeadings::GridHeadings(QTableView& table, Owner owner)
    : QObject(&table),
      table_(table),
      corner_(table.findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)),
      owner_(std::move(owner)) {
  table_.setCornerButtonEnabled(false);
  table_.horizontalHeader()->setStyle(&style_);
  table_.verticalHeader()->setStyle(&style_);
  corner_->installEventFilter(this);
  table_.horizontalHeader()->viewport()->installEventFilter(this);
  table_.verticalHeader()->viewport()->installEventFilter(this);
}

void GridHeadings::repaint_visible() {
  corner_->update();
  table_.horizontalHeader()->viewport()->update();
  table_.verticalHeader()->viewport()->update();
}

bool GridHeadings::eventFilter(QObject* object, QEvent* event) {
  switch (event->type()) {
    case QEvent::Paint:
      if (object != corner_) return false;
      paint_corner();
      return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return click(static_cast<QMouseEvent&>(*event));
    case QEvent::ToolTip: {
      const auto& help = static_cast<QHelpEvent&>(*event);
      owner_.asks_tip(heading_at(object, help.pos()), help.globalPos());
      return true;
    }
    default:
      return false;
  }
}

void GridHeadings::paint_corner() {
  QStyleOptionHeader option;
  option.initFrom(table_.horizontalHeader());  // the corner itself is a button that is never enabled
  option.rect = corner_->rect();
  option.state |= QStyle::State_Raised;
  option.text = owner_.corner_text();
  option.textAlignment = Qt::AlignLeft | Qt::AlignVCenter;
  option.position = QStyleOptionHeader::OnlyOneSection;
  option.section = 0;
  QPainter painter(corner_);
  style_.drawControl(QStyle::CE_Header, &option, &painter, corner_);
}

bool GridHeadings::click(const QMouseEvent& event) {
  if (event.button() == Qt::RightButton) {
    owner_.clicked(GridClick::right);
    return true;
  }
  if (event.button() == Qt::LeftButton && event.type() == QEvent::MouseButtonDblClick) {
    owner_.clicked(GridClick::double_click);
  }
  return false;
}

/// With -1 for the row or column in which no cell is.
GridCell GridHeadings::heading_at(const QObject* object, QPoint place) const {
  if (object == corner_) return {0, 0};
  const bool has_row = !table_.horizontalHeader()->isHidden();
  const bool has_column = !table_.verticalHeader()->isHidden();
  if (object == table_.horizontalHeader()->viewport()) {
    const int section = table_.horizontalHeader()->logicalIndexAt(place);
    return {section < 0 ? -1 : section + (has_column ? 1 : 0), 0};
  }
  const int section = table_.verticalHeader()->logicalIndexAt(place);
  return {0, section < 0 ? -1 : section + (has_row ? 1 : 0)};
}

}  // namespace kov
