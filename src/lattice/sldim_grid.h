#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "interact/grid_model.h"
#include "interact/messages.h"
#include "lattice/slice_view.h"

namespace kov {

/// The definition of the slice that Slq shows: a row for each key position, l first, with its name, which
/// also tells the axes, and its offset. Whoever enters Slq calls leave() here first, so that Slq then shows
/// the slice that was typed.
class SldimGrid final : public GridModel {
 public:
  /// Both must outlive the grid.
  SldimGrid(SliceView& view, Messages& messages);

  int column_count() const override { return 2; }
  int row_count() const override { return MaxDimCount; }
  int fixed_rows() const override { return 0; }
  std::string text(GridCell cell) const override;
  bool editable(GridCell cell) const override { return cell.column == offset_column; }
  bool always_shows_editor() const override { return true; }
  int default_column_width() const override { return 44; }

  /// Shows the slice's definition anew; an edit that was not taken yet is given up.
  void show() override;
  /// show(), and the slice along with it: see set_slice_changed.
  void redisplay();
  bool key(const GridKey& key) override;

  /// What the mouse over a row is told.
  std::string hint(GridCell cell) const;

  /// Called at the end of a redisplay, but not by show(): Slq is to be redisplayed.
  void set_slice_changed(std::function<void()> slice_changed) { slice_changed_ = std::move(slice_changed); }

 protected:
  void take_edit(GridCell cell, const std::string& text) override;

 private:
  static constexpr int offset_column = 1;

  /// The key position of a row.
  static int position_of(GridCell cell);
  /// The integer in the selected cell, with delta added; nothing when it is none or leaves 32 bits.
  std::optional<std::int32_t> selected_offset(int delta) const;
  /// Stores the integer in the selected cell with delta added, or beeps.
  void store_selected(int delta);

  SliceView& view_;
  Messages& messages_;
  std::function<void()> slice_changed_;
};

}  // namespace kov
