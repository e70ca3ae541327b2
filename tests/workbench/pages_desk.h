#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "workbench/desk.h"
#include "workbench/pages.h"

namespace kov {

/// A desk with all pages; every 10th point of a summation is reported.
struct PagesDesk : Desk {
  PagesDesk() { document().cph.setkmi_1("Sums_EntryCountPerDisplay", 10); }

  Pages pages{workbench, person.user()};

  std::string text(std::string_view grid, GridCell cell) { return pages.grid(grid)->text(cell); }
  std::vector<std::string> take_reports() { return std::exchange(reports, {}); }
  void show(Page page) {
    pages.show(page);
    reports.clear();
  }
  /// Types a text over a cell and stays in it.
  void type(std::string_view grid, GridCell cell, const std::string& typed) {
    GridModel& model = pages.enter(grid);
    model.select(cell);
    for (const char c : typed) model.press(GridKey::of(c));
  }
  bool active(Page page) const { return workbench.active_page == static_cast<int>(page); }
};

using Reports = std::vector<std::string>;

inline const Reports summed_10_of_10 = {"caption: lattice point 10 of 10 summed up"};

}  // namespace kov
