#pragma once

#include <functional>
#include <string>
#include <utility>

#include "config/cphclass.h"
#include "interact/user.h"
#include "lattice/lmap.h"
#include "sums/range_tables.h"
#include "sums/sums1.h"

namespace kov {

/// What the Sums1 page does around its two grids: it sums up, and opens and closes the Modify Range menu,
/// which stands where the grid of the results is otherwise. Its grids, the buttons of the menu and the
/// commands that choose a table share it.
class Sums1Page {
 public:
  /// What is passed in must outlive the page.
  Sums1Page(const Lmap& lmap, const RangeTables& tables, const cphclass& cph)
      : lmap_(lmap), tables_(tables), cph_(cph) {}

  /// The tab was chosen, Enter was pressed or the table was double-clicked: sums up and displays. A summation
  /// that displays its results closes the menu; after any other there is nothing new to see behind it.
  void sum_up(User user);
  /// A handled key of the range table's grid, or another cell of it selected: sums up while
  /// Sums1_SumUp_at_once is set, else opens the menu.
  void range_changed(User user);
  /// The right mouse button on the range table, or another table chosen by number.
  void open_menu();
  /// "Close": sums up and closes the menu, whatever comes of the summation.
  void close_menu(User user);

  bool menu_open() const { return menu_open_; }
  /// Whether the grid of the results is shown: not behind the menu, and not after a summation that Break
  /// ended.
  bool results_shown() const { return !menu_open_ && !broken_; }
  /// The text behind the results, seen while they are not shown; empty while there is none.
  const std::string& label() const { return sums_.label(); }
  /// The hint of the range table's grid, empty without one: while the menu is closed and sums follow every
  /// change, nothing else tells how to get at the menu.
  const std::string& hint() const { return hint_; }
  /// The text of a cell of Slsums1.
  std::string Slsums1_text(int column, int row) const { return sums_.Slsums1_text(column, row); }

  /// Called whenever anything that the page shows may have changed.
  void set_changed(std::function<void()> changed) { changed_ = std::move(changed); }

 private:
  SumOutcome summed_up(User user);
  void hide_menu();
  void changed() const {
    if (changed_) changed_();
  }

  const Lmap& lmap_;
  const RangeTables& tables_;
  const cphclass& cph_;
  Sums1 sums_;
  bool menu_open_ = false;
  bool broken_ = false;
  std::string hint_;
  std::function<void()> changed_;
};

}  // namespace kov
