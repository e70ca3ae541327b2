#pragma once

#include <string>
#include <string_view>

#include "algadd/algadd_grid.h"
#include "config/config_grid.h"
#include "interact/grid_model.h"
#include "interact/user.h"
#include "lattice/list_grid.h"
#include "lattice/sldim_grid.h"
#include "lattice/slq_grid.h"
#include "sums/range_grid.h"
#include "sums/sums1_grid.h"
#include "sums/sums2_grid.h"
#include "workbench/workbench.h"

namespace kov {

/// The grids of all pages over one workbench, wired to each other: an edit in one of them redisplays what
/// shows the same data, as do commands. The window shows them by widgets, kovbatch by lines of text.
///
/// Only the page that is shown is kept up to date; any other computes what it shows when it is chosen.
class Pages {
 public:
  /// Both must outlive the pages.
  Pages(Workbench& workbench, User user);
  ~Pages();
  Pages(const Pages&) = delete;
  Pages& operator=(const Pages&) = delete;

  /// The grid of this name ("Slq", "Sldim", "Sllist", "SlAlgadd", "Slds1", "Slsums1", "Slsums2",
  /// "Slconfig"), or null.
  GridModel* grid(std::string_view name);
  /// The page that holds the grid of this name; only for names that grid() knows.
  static Page page_of(std::string_view grid_name);

  /// What choosing the tab of a page does: the page becomes the active one and computes what it shows.
  void show(Page page);
  /// After a command or an edit: redisplays what the active page shows.
  void refresh();
  /// Takes the edit under way in the grid that has one, as leaving it does; before a command runs.
  void leave_grids();

  /// The text that a page shows behind or beside its grid: "Sums1", "Sums2", "Algadd" (the table menu's
  /// summary); empty where there is none or for another page.
  std::string label(Page page);

 private:
  Workbench& workbench_;
  User user_;
};

}  // namespace kov
