#pragma once

#include <QAbstractTableModel>

#include "interact/grid_model.h"

namespace kov {

/// A grid model as a table model of Qt: the cells behind the headings are the table's, the heading row and
/// column its header data. Takes no text before it is asked for one. A grid has at most one heading row and
/// one heading column here.
class GridAdapter final : public QAbstractTableModel {
 public:
  GridAdapter(const GridModel& model, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  bool has_heading_row() const { return model_.fixed_rows() > 0; }
  bool has_heading_column() const { return model_.fixed_columns() > 0; }

  GridCell cell_of(const QModelIndex& index) const;
  /// Invalid for headings and beyond the grid.
  QModelIndex index_of(GridCell cell) const;

  /// Resets the table if the counts of the grid have changed since the last call.
  void adopt_counts();

 private:
  QVariant text(GridCell cell) const;
  QVariant alignment(GridCell cell) const;
  GridCell heading(int section, Qt::Orientation orientation) const;
  int live_rows() const;
  int live_columns() const;

  const GridModel& model_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace kov
