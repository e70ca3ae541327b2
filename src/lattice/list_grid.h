#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "interact/grid_model.h"
#include "interact/questions.h"
#include "lattice/lmap.h"
#include "text/integers.h"

namespace kov {

/// The List page's grid Sllist: the points of the store in key order, one a row, a screenful at a time. It
/// keeps the listed points, so that a cell costs no search and shows what was stored when the listing was
/// built: after a change of the store the listing is to be built anew.
class SllistGrid final : public GridModel {
 public:
  /// Both must outlive the grid.
  SllistGrid(const Lmap& lmap, Questions& questions);

  /// Running number, quantity, and the key with l first.
  int column_count() const override { return 2 + MaxDimCount; }
  /// The heading and the data rows in view, whether or not there are points for all of them.
  int row_count() const override { return 1 + data_rows_; }
  int fixed_columns() const override { return 0; }
  std::string text(GridCell cell) const override;
  int default_column_width() const override { return 54; }
  /// Numbers beyond a million and quantities that became floating are to be read in full.
  int column_width(int column) const override;

  /// Builds the listing with recounting. To be called as well after the store has changed.
  void show() override;
  /// The page was resized: so many data rows, at least 1, are in view. Builds the listing without
  /// recounting. 59 at first.
  void set_visible_rows(int data_rows);
  bool key(const GridKey& key) override;

 protected:
  void clicked(GridClick click, GridCell cell) override;

 private:
  struct Point {
    Lk key;
    cotyp quantity;
  };
  enum class Recount { no, yes };

  void list_from(const Lk& start_key);
  void build(Recount recount);
  /// Moves the start by so many points, at most to an end of the store, and builds without recounting.
  void scroll(int points);
  /// Moves the start back until the page is full or begins with the first point.
  void fill_page(Lmap::Cursor& start);
  void take_points(Lmap::Cursor start);
  void ask_list_start();

  const Lmap& lmap_;
  Questions& questions_;
  int data_rows_ = 59;
  /// The place of the first listed point in key order, counted from 1.
  std::int64_t running_number_ = 1;
  Lk start_key_ = Lk::filled(lowest_int);
  std::vector<Point> points_;
};

}  // namespace kov
