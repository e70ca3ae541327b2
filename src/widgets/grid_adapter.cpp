#include "widgets/grid_adapter.h"

#include <algorithm>

#include "widgets/cell_painter.h"
#include "widgets/qt_text.h"

namespace kov {

GridAdapter::GridAdapter(const GridModel& model, QObject* parent)
    : QAbstractTableModel(parent), model_(model), rows_(live_rows()), columns_(live_columns()) {}

int GridAdapter::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridAdapter::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns_; }

QVariant GridAdapter::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole) return text(cell_of(index));
  if (role == Qt::TextAlignmentRole) return alignment(cell_of(index));
  return {};
}

QVariant GridAdapter::headerData(int section, Qt::Orientation orientation, int role) const {
  const GridCell cell = heading(section, orientation);
  if (role == Qt::DisplayRole) return text(cell);
  if (role != Qt::TextAlignmentRole) return {};
  if (orientation == Qt::Vertical || is_number(text(cell).toString())) return alignment(cell);
  return alignment({cell.column, model_.fixed_rows()});  // as the cells below it
}

Qt::ItemFlags GridAdapter::flags(const QModelIndex& index) const {
  return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

GridCell GridAdapter::cell_of(const QModelIndex& index) const {
  return {index.column() + model_.fixed_columns(), index.row() + model_.fixed_rows()};
}

QModelIndex GridAdapter::index_of(GridCell cell) const {
  return index(cell.row - model_.fixed_rows(), cell.column - model_.fixed_columns());
}

void GridAdapter::adopt_counts() {
  if (rows_ == live_rows() && columns_ == live_columns()) return;
  beginResetModel();
  rows_ = live_rows();
  columns_ = live_columns();
  endResetModel();
}

/// Empty where the grid has become smaller and the table has not been told yet.
QVariant GridAdapter::text(GridCell cell) const {
  if (cell.column >= model_.column_count() || cell.row >= model_.row_count()) return QString();
  return to_qt(model_.text(cell));
}

QVariant GridAdapter::alignment(GridCell cell) const {
  return QVariant::fromValue(alignment_of(text(cell).toString()));
}

GridCell GridAdapter::heading(int section, Qt::Orientation orientation) const {
  if (orientation == Qt::Horizontal) return {section + model_.fixed_columns(), 0};
  return {0, section + model_.fixed_rows()};
}

int GridAdapter::live_rows() const { return std::max(0, model_.row_count() - model_.fixed_rows()); }

int GridAdapter::live_columns() const { return std::max(0, model_.column_count() - model_.fixed_columns()); }

}  // namespace kov
