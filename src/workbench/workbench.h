#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "datafile/document.h"
#include "interact/user.h"
#include "sums/range_menu.h"
#include "sums/sums1_page.h"
#include "workbench/display.h"

namespace kov {

/// The pages of the main window, in the order of their tabs.
enum class Page { lattices, list, comment, algadd, sums1, sums2, graph1, graph2, config };

/// One of everything: what the main window, or kovbatch's runner, owns for the whole run.
struct Workbench {
  /// The start-up state: the catalogue's defaults, empty lattices, default tables and view.
  Workbench(Messages& messages, const WindowFacts& facts);
  Workbench(const Workbench&) = delete;
  Workbench& operator=(const Workbench&) = delete;

  /// Who is told things, for the warning level that a caption shows.
  const Messages& person;
  Document document;
  CurrentFile file;
  /// Where the main window stands; the catalogue takes its geometry from here.
  WindowFacts window;

  /// Index of the page that is shown.
  int active_page = 0;
  /// The entry whose column is selected on the Algadd page.
  int current_entry = 0;
  /// The menu that the Algadd page opens and closes.
  bool algadd_menu_open = false;
  /// The check boxes "Destination = Range 1" and "Destination = Range 2".
  RangeDestinations range_is_destination = {true, true};
  /// Graph1's check boxes: CB0qre, CB0qim, CB0qq, CB0qa, CB0cntAt, CB1qre, ...
  std::array<bool, 10> graph1_checked{};
  /// Graph1 draws two curves against each other instead of along x.
  bool graph1_overlay = false;
  /// Graph2's radio button, 0 ... 9.
  int graph2_radio_index = 0;
  /// What the Sums1 page shows around its grids, its Modify Range menu included.
  Sums1Page sums1{document.lmap, document.ranges, document.cph};
  /// Set by Exit: nothing more is to be carried out.
  bool exit_requested = false;

  /// Takes every parameter's value to whatever shows or uses it: table indices, check boxes. A table or
  /// button index that does not exist (a data file's line may widen its own range) is reported, and the
  /// old one stays.
  void apply_parameters(Messages& messages);
  /// Likewise for one parameter, after an edit of it: what was chosen by other means stays. What shows it
  /// is redisplayed.
  void apply_parameter(std::string_view keyword, Messages& messages);

  /// Chooses the page that F1_Initial_Active_Page names, as after a read; showing it is left to
  /// whoever tells the display that everything has changed.
  void choose_initial_page(Messages& messages);
  /// What choosing the tab of a page does.
  void show_page(Page page);

  /// The ranges of the current range table, as the deletions outside Sums1 take them.
  const std::array<KeyBox, 2>& current_ranges() const { return document.ranges.current_table().range; }

  /// What follows a change of the store: the caption of the main window becomes its status line, then
  /// the page that is shown is redisplayed, where it depends on the store.
  void show_status(Progress& progress) const;
  /// The first half of it: the status line comes back after other captions, and the store is what it was.
  void restore_status_line(Progress& progress) const;

  /// Who shows this workbench; without anybody, nothing is shown.
  Display& display() const { return *display_; }
  /// The display must stay until another one, or detach_display, takes its place.
  void attach_display(Display& display) { display_ = &display; }
  void detach_display() { display_ = &nobody_; }

 private:
  Display nobody_;
  Display* display_ = &nobody_;
};

}  // namespace kov
