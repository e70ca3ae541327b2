#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "config/cphclass.h"
#include "interact/grid_model.h"
#include "interact/messages.h"
#include "lattice/lmap.h"
#include "lattice/slice_view.h"

namespace kov {

/// The hint of the Lattices page, which shows the grids Sldim and Slq.
inline constexpr const char* lattices_page_hint = "view and edit global multidimensional lattices";

/// The slice itself: a cell for each of its points, which shows the point's quantity and takes a new one;
/// the coordinates along x above, those along y, which grow downward, at the left.
///
/// A quantity that was not edited is never read back from its text, since a text carries 15 digits only.
class SlqGrid final : public GridModel {
 public:
  /// All four must outlive the grid.
  SlqGrid(const SliceView& view, Lmap& lmap, const cphclass& cph, Messages& messages);

  int column_count() const override { return column_count_; }
  int row_count() const override { return row_count_; }
  std::string text(GridCell cell) const override;
  bool editable(GridCell cell) const override { return cell.column >= 1 && cell.row >= 1; }
  bool always_shows_editor() const override { return true; }
  int default_column_width() const override { return default_column_width_; }

  /// Reads Slq_ColCount, Slq_RowCount and Slq_DefaultColWidth and shows every cell anew; an edit that was
  /// not taken yet is given up, since the cell may stand for another point now.
  void show() override;
  /// show(), and then what a stored cell calls for, too: see set_lattice_changed.
  void redisplay();
  bool key(const GridKey& key) override;

  /// The point of a cell with column and row from 1 on; coordinates wrap at the ends of 32 bits.
  Lk key_at(GridCell cell) const noexcept;
  /// What the mouse over a cell is told: l, n, the axes and whatever else is not 0 in the point's key.
  /// Empty for headings.
  std::string hint(GridCell cell) const;

  /// Called when a cell was stored, when another one was selected and at the end of a redisplay, but not by
  /// show(): the status line and what another active page shows are to be renewed.
  void set_lattice_changed(std::function<void()> lattice_changed) {
    lattice_changed_ = std::move(lattice_changed);
  }

 protected:
  void take_edit(GridCell cell, const std::string& text) override;
  void selection_moved() override;

 private:
  std::string heading(GridCell cell) const;
  /// The quantity that a typed text means in a cell; nothing when it is none.
  std::optional<cotyp> typed_quantity(GridCell cell, const std::string& text) const;
  /// Stores what is in the selected cell, with delta added to its real part; a text that is no quantity
  /// stays in the editor.
  void store_selected(std::int32_t delta);
  void store(GridCell cell, const cotyp& quantity);

  const SliceView& view_;
  Lmap& lmap_;
  const cphclass& cph_;
  Messages& messages_;
  int column_count_ = 0;
  int row_count_ = 0;
  int default_column_width_ = 0;
  std::function<void()> lattice_changed_;
};

}  // namespace kov
