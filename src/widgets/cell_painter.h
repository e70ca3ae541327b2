#pragma once

#include <QString>
#include <QStyleOptionViewItem>
#include <QStyledItemDelegate>

#include "interact/messages.h"

class QPainter;

namespace kov {

class StringGrid;

/// Blank pixels at both sides of a cell's text.
inline constexpr int cell_margin = 4;

/// Whether a text is one of the program's numbers, which stand at the right side of their cells: an integer,
/// a quantity in any of its forms, or one of the infinite bounds "+" and "-".
bool is_number(const QString& text);

/// Where a text stands in its cell: numbers right, others left.
Qt::Alignment alignment_of(const QString& text);

/// Paints one cell of a grid from its text, in the colours of the grid's palette; what does not fit ends in
/// an ellipsis, and where the grid wants it so, zeros step back behind the other numbers. Without a grid it
/// paints nothing and says so as a warning.
void SlDrawcell(const StringGrid* grid, Messages& messages, QPainter& painter,
                const QStyleOptionViewItem& option, const QString& text);

/// Hands every cell of a grid to SlDrawcell.
class CellDelegate final : public QStyledItemDelegate {
 public:
  CellDelegate(StringGrid& grid, Messages& messages);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  const StringGrid& grid_;
  Messages& messages_;
};

}  // namespace kov
