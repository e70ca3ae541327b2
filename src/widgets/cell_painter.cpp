#include "widgets/cell_painter.h"

#include <QPainter>
#include <algorithm>

#include "widgets/string_grid.h"

namespace kov {
namespace {

bool may_be_in_number(QChar c) { return (c >= u'0' && c <= u'9') || QStringView(u"+-/.iIeE").contains(c); }

QPalette::ColorGroup color_group(const QStyleOptionViewItem& option) {
  if (!(option.state & QStyle::State_Enabled)) return QPalette::Disabled;
  return option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

}  // namespace

bool is_number(const QString& text) {
  if (text == QStringLiteral("+") || text == QStringLiteral("-")) return true;
  const auto is_digit = [](QChar c) { return c >= u'0' && c <= u'9'; };
  return std::ranges::all_of(text, may_be_in_number) && std::ranges::any_of(text, is_digit);
}

void SlDrawcell(const StringGrid* grid, Messages& messages, QPainter& painter,
                const QStyleOptionViewItem& option, const QString& text) {
  if (grid == nullptr) return messages.warning("StringGrid == NULL in SlDrawcell");
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  const QPalette::ColorGroup group = color_group(option);
  painter.save();
  painter.fillRect(option.rect, option.palette.brush(group, selected ? QPalette::Highlight : QPalette::Base));
  painter.setFont(option.font);
  painter.setPen(option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
  const QRect room = option.rect.adjusted(cell_margin, 0, -cell_margin, 0);
  const Qt::Alignment side = is_number(text) ? Qt::AlignRight : Qt::AlignLeft;
  painter.drawText(room, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine,
                   option.fontMetrics.elidedText(text, Qt::ElideRight, room.width()));
  if (option.state & QStyle::State_HasFocus) {
    painter.setPen(QPen(option.palette.color(group, QPalette::WindowText), 1, Qt::DotLine));
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
  }
  painter.restore();
}

CellDelegate::CellDelegate(StringGrid& grid, Messages& messages)
    : QStyledItemDelegate(&grid), grid_(grid), messages_(messages) {}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  SlDrawcell(&grid_, messages_, *painter, option, index.data().toString());
}

}  // namespace kov
