#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "algadd/algadd_grid.h"
#include "config/config_grid.h"
#include "graphs/graph1_page.h"
#include "graphs/graph2_page.h"
#include "graphs/slg2a_grid.h"
#include "interact/grid_model.h"
#include "interact/user.h"
#include "lattice/list_grid.h"
#include "lattice/sldim_grid.h"
#include "lattice/slq_grid.h"
#include "sums/range_grid.h"
#include "sums/sums1_grid.h"
#include "sums/sums2_grid.h"
#include "workbench/display.h"
#include "workbench/workbench.h"

namespace kov {

/// The grids of all pages over one workbench, wired to each other: an edit in one of them redisplays what
/// shows the same data, as do commands. The window shows them by widgets, kovbatch by lines of text.
///
/// Only the page that is shown is kept up to date; any other computes what it shows when it is chosen. A
/// redisplay for which memory does not suffice is reported, and nothing escapes from it: it also follows the
/// errors of commands.
class Pages : private Display {
 public:
  /// Both must outlive the pages, which are the workbench's display as long as they live.
  Pages(Workbench& workbench, User user);
  ~Pages() override;
  Pages(const Pages&) = delete;
  Pages& operator=(const Pages&) = delete;

  /// The grid of this name ("Slq", "Sldim", "Sllist", "SlAlgadd", "Slds1", "Slsums1", "Slsums2",
  /// "Slg2a", "Slconfig"), or null.
  GridModel* grid(std::string_view name);
  static bool is_grid(std::string_view name);
  /// The page that holds the grid of this name; only for names that grid() knows.
  static Page page_of(std::string_view grid_name);

  /// What choosing the tab of a page does: the page becomes the active one and computes what it shows.
  void show(Page page);
  /// What a person does to work in a grid: its page is shown unless it is the active one, and edits under
  /// way in the other grids are taken. Only for names that grid() knows.
  GridModel& enter(std::string_view grid_name);
  /// After a command or an edit: redisplays what the active page shows.
  void refresh();
  /// Takes the edit under way in the grid that has one, as leaving it does; before a command runs.
  void leave_grids();
  /// Whether there is one.
  bool edit_under_way();

  /// The text that a page shows behind or beside its grid or picture: "Sums1", "Sums2", "Graph1", "Graph2",
  /// "Algadd" (the table menu's summary); empty where there is none or for another page.
  std::string label(Page page) const;

  /// Called whenever what stands around the grids may have changed: which page is active, a menu of a
  /// page, a label, whether a grid is hidden, captions of commands.
  void set_changed(std::function<void()> changed) { changed_ = std::move(changed); }

  /// Asked before the active page is redisplayed, which may calculate: whoever shows pictures tells the
  /// graph pages here how large they are to be. False leaves the page as it is; it is then calculated by
  /// whoever first asks for its picture.
  void set_about_to_redisplay(std::function<bool()> about) { about_to_redisplay_ = std::move(about); }

  SlqGrid& slq() { return slq_; }
  SldimGrid& sldim() { return sldim_; }
  SllistGrid& sllist() { return sllist_; }
  AlgaddGrid& algadd() { return algadd_; }
  RangeGrid& slds1() { return slds1_; }
  Sums1Grid& slsums1() { return slsums1_; }
  Sums2Grid& slsums2() { return slsums2_; }
  ConfigGrid& config() { return config_; }
  Graph1Page& graph1() { return graph1_; }
  Graph2Page& graph2() { return graph2_; }
  Slg2aGrid& slg2a() { return slg2a_; }
  /// A click on one of Graph2's radio buttons, 0 ... 9.
  void choose_graph2_radio(int index);

 private:
  void page_chosen() override;
  void lattices_changed() override { refresh(); }
  void algadd_changed() override;
  void ranges_changed() override;
  void parameter_changed(std::string_view keyword) override;
  void graph1_box_changed() override;
  void graph1_oplot_changed() override;
  void file_renamed() override;
  void document_changed() override;

  void wire_lattice_grids();
  void wire_algadd_grid();
  void wire_graph2();
  bool is_active(Page page) const { return workbench_.active_page == static_cast<int>(page); }
  void show_active_page();
  void show_sums1();
  /// A redisplay of one page, which a lack of memory must not leave.
  void redisplay(const std::function<void()>& show);
  /// After what may also have set a parameter.
  void show_config_if_active();
  /// A cell of the slice was stored, or the slice is another one.
  void slice_edited();
  /// Every grid. The slice's comes before its definition's, whose edit makes the slice another one.
  std::array<GridModel*, 9> all() {
    return {&slq_, &sldim_, &sllist_, &algadd_, &slds1_, &slsums1_, &slsums2_, &slg2a_, &config_};
  }
  void changed() const {
    if (changed_) changed_();
  }

  Workbench& workbench_;
  User user_;
  SlqGrid slq_;
  SldimGrid sldim_;
  SllistGrid sllist_;
  AlgaddGrid algadd_;
  RangeGrid slds1_;
  Sums1Grid slsums1_;
  Sums2Grid slsums2_;
  ConfigGrid config_;
  Graph1Page graph1_;
  Graph2Page graph2_;
  Slg2aGrid slg2a_;
  std::function<void()> changed_;
  std::function<bool()> about_to_redisplay_;
};

}  // namespace kov
