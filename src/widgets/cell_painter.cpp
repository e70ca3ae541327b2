#include "widgets/cell_painter.h"

#include <QPainter>
#include <algorithm>

#include "widgets/string_grid.h"

namespace kov {
namespace {

bool may_be_in_number(QChar c) { return (c >= u'0' && c <= u'9') || QStringView(u"+-/.iIeE").contains(c); }

/// The colours of one cell.
struct Ink {
  QColor ground;
  QColor text;
};

QColor mixed(const QColor& a, const QColor& b, double part_of_a) {
  const auto mix = [part_of_a](int x, int y) { return qRound(part_of_a * x + (1 - part_of_a) * y); };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

QPalette::ColorGroup color_group(const QStyleOptionViewItem& option) {
  if (!(option.state & QStyle::State_Enabled)) return QPalette::Disabled;
  return option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

/// A selection that the keys are not at, as beside the grid that has them, is a hint of the colour only.
/// Mixtures are right in every palette, light or dark; not every desktop sets the roles for paler texts.
Ink ink_of(const StringGrid& grid, const QStyleOptionViewItem& option, const QString& text) {
  constexpr double hint = 0.3;
  constexpr double pale = 0.55;
  const auto color = [&](QPalette::ColorRole role) {
    return option.palette.color(color_group(option), role);
  };
  const QColor base = color(QPalette::Base);
  if (option.state.testFlag(QStyle::State_Selected)) {
    if (grid.has_keys()) return {color(QPalette::Highlight), color(QPalette::HighlightedText)};
    return {mixed(color(QPalette::Highlight), base, hint), color(QPalette::Text)};
  }
  // What is locked is grey already, and all of it alike.
  const bool is_enabled = option.state.testFlag(QStyle::State_Enabled);
  if (!is_enabled || !grid.dims_zeros() || text != QStringLiteral("0")) return {base, color(QPalette::Text)};
  return {base, mixed(color(QPalette::Text), base, pale)};
}

}  // namespace

bool is_number(const QString& text) {
  if (text == QStringLiteral("+") || text == QStringLiteral("-")) return true;
  const auto is_digit = [](QChar c) { return c >= u'0' && c <= u'9'; };
  return std::ranges::all_of(text, may_be_in_number) && std::ranges::any_of(text, is_digit);
}

Qt::Alignment alignment_of(const QString& text) {
  return (is_number(text) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

void SlDrawcell(const StringGrid* grid, Messages& messages, QPainter& painter,
                const QStyleOptionViewItem& option, const QString& text) {
  if (grid == nullptr) return messages.warning("StringGrid == NULL in SlDrawcell");
  const QPalette::ColorGroup group = color_group(option);
  painter.save();
  const Ink ink = ink_of(*grid, option, text);
  painter.fillRect(option.rect, ink.ground);
  painter.setFont(option.font);
  painter.setPen(ink.text);
  const QRect room = option.rect.adjusted(cell_margin, 0, -cell_margin, 0);
  painter.drawText(room, static_cast<int>(alignment_of(text)) | Qt::TextSingleLine,
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
