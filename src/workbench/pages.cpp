#include "workbench/pages.h"

#include <algorithm>
#include <cstddef>
#include <new>

#include "algadd/table_summary.h"

namespace kov {
namespace {

struct NamedGrid {
  std::string_view name;
  Page page;
};

// In the order of Pages::all().
constexpr std::array<NamedGrid, 9> grids{{
    {"Slq", Page::lattices},
    {"Sldim", Page::lattices},
    {"Sllist", Page::list},
    {"SlAlgadd", Page::algadd},
    {"Slds1", Page::sums1},
    {"Slsums1", Page::sums1},
    {"Slsums2", Page::sums2},
    {"Slg2a", Page::graph2},
    {"Slconfig", Page::config},
}};

const NamedGrid* find_grid(std::string_view name) {
  const auto found =
      std::find_if(grids.begin(), grids.end(), [&](const NamedGrid& grid) { return grid.name == name; });
  return found == grids.end() ? nullptr : &*found;
}

/// Parameters of which a page makes what it shows, by the beginning of their keywords.
struct ShownParameters {
  std::string_view beginning;
  Page page;
};

// clang-format off
constexpr std::array<ShownParameters, 11> shown_parameters{{
    {"Slq_",      Page::lattices},
    {"SlAlgadd_", Page::algadd},
    {"Sums_",     Page::sums1},
    {"Sums1_",    Page::sums1},
    {"Sums_",     Page::sums2},
    {"Sums2_",    Page::sums2},
    {"Graph_",    Page::graph1},
    {"Graph1_",   Page::graph1},
    {"Graph_",    Page::graph2},
    {"Graph2_",   Page::graph2},
    {"Graph2a_",  Page::graph2},
}};
// clang-format on

bool shows(Page page, std::string_view keyword) {
  return std::any_of(shown_parameters.begin(), shown_parameters.end(), [&](const ShownParameters& shown) {
    return shown.page == page && keyword.substr(0, shown.beginning.size()) == shown.beginning;
  });
}

}  // namespace

Pages::Pages(Workbench& workbench, User user)
    : workbench_(workbench),
      user_(user),
      slq_(workbench.document.slice, workbench.document.lmap, workbench.document.cph, user.messages),
      sldim_(workbench.document.slice, user.messages),
      sllist_(workbench.document.lmap, user.questions),
      algadd_(workbench.document.algadd, workbench.document.cph, user.messages),
      slds1_(workbench.document.ranges, workbench.sums1, workbench.document.cph, user),
      slsums1_(workbench.sums1, workbench.document.cph, user),
      slsums2_(workbench.document.lmap, workbench.document.cph, user),
      config_(workbench.document.cph, workbench.window, user.messages),
      graph1_({.lmap = workbench.document.lmap,
               .tables = workbench.document.ranges,
               .cph = workbench.document.cph,
               .checked = workbench.graph1_checked,
               .oplot = workbench.graph1_overlay,
               .file_name = [&workbench] { return workbench.file.chosen ? workbench.file.name() : ""; }},
              user.messages, user.progress),
      graph2_({.lmap = workbench.document.lmap,
               .tables = workbench.document.ranges,
               .cph = workbench.document.cph,
               .states = workbench.document.curve_states,
               .radio_index = workbench.graph2_radio_index,
               .file_name = [&workbench] { return workbench.file.chosen ? workbench.file.name() : ""; }},
              user),
      slg2a_(workbench.document.curve_states, workbench.document.cph, user) {
  wire_lattice_grids();
  wire_algadd_grid();
  wire_graph2();
  workbench_.sums1.set_changed([this] {
    slsums1_.give_up_edit();
    changed();
  });
  config_.set_parameter_changed(
      [this](const std::string& keyword) { workbench_.apply_parameter(keyword, user_.messages); });
  workbench_.attach_display(*this);
}

Pages::~Pages() {
  workbench_.detach_display();
  workbench_.sums1.set_changed({});
}

void Pages::wire_lattice_grids() {
  slq_.set_lattice_changed([this] { slice_edited(); });
  sldim_.set_slice_changed([this] { slq_.redisplay(); });
}

void Pages::wire_algadd_grid() {
  algadd_.set_tables_changed([this] { changed(); });
  algadd_.set_entry_selected([this](int entry) { workbench_.current_entry = entry; });
  algadd_.set_show_menu([this](bool shown) {
    workbench_.algadd_menu_open = shown;
    changed();
  });
}

void Pages::wire_graph2() {
  slg2a_.set_y_of_curve([this](int curve) { return graph2_.y_of_curve(curve); });
  slg2a_.set_states_changed([this] { redisplay([this] { graph2_.draw_curves_anew(); }); });
}

void Pages::choose_graph2_radio(int index) {
  redisplay([&] { graph2_.radio(index); });
  show_config_if_active();
}

GridModel* Pages::grid(std::string_view name) {
  const NamedGrid* found = find_grid(name);
  return found == nullptr ? nullptr : all()[static_cast<std::size_t>(found - grids.data())];
}

bool Pages::is_grid(std::string_view name) { return find_grid(name) != nullptr; }

Page Pages::page_of(std::string_view grid_name) { return find_grid(grid_name)->page; }

void Pages::show(Page page) {
  leave_grids();
  workbench_.show_page(page);
}

GridModel& Pages::enter(std::string_view grid_name) {
  GridModel& entered = *grid(grid_name);
  if (!is_active(page_of(grid_name))) {
    show(page_of(grid_name));
  } else {
    for (GridModel* grid : all()) {
      if (grid != &entered) grid->leave();
    }
  }
  return entered;
}

void Pages::leave_grids() {
  for (GridModel* grid : all()) grid->leave();
}

bool Pages::edit_under_way() {
  const auto models = all();
  return std::any_of(models.begin(), models.end(), [](const GridModel* grid) { return grid->edited(); });
}

void Pages::refresh() {
  redisplay([this] { show_active_page(); });
}

void Pages::redisplay(const std::function<void()>& show) {
  try {
    if (!about_to_redisplay_ || about_to_redisplay_()) show();
  } catch (const std::bad_alloc&) {
    user_.messages.error("Not enough memory to redisplay the page.");
  }
  changed();
}

void Pages::show_active_page() {
  if (!is_active(Page::graph2)) graph2_.release();
  switch (static_cast<Page>(workbench_.active_page)) {
    case Page::lattices:
      sldim_.show();
      return slq_.show();
    case Page::list:
      return sllist_.show();
    case Page::algadd:
      return algadd_.show();
    case Page::sums1:
      return show_sums1();
    case Page::sums2:
      return slsums2_.show();
    case Page::config:
      return config_.show();
    case Page::graph1:
      return graph1_.show();
    case Page::graph2:
      graph2_.redraw();
      return slg2a_.show();
    case Page::comment:
      return;
  }
}

void Pages::show_sums1() {
  slds1_.give_up_edit();
  workbench_.sums1.sum_up(user_);
}

void Pages::show_config_if_active() {
  if (is_active(Page::config)) config_.show();
}

void Pages::page_chosen() {
  if (!is_active(Page::graph2)) return refresh();
  redisplay([this] {
    graph2_.shown();
    slg2a_.show();
  });
}

void Pages::algadd_changed() {
  algadd_.refill();
  changed();
}

void Pages::ranges_changed() {
  slds1_.give_up_edit();
  show_config_if_active();
  if (is_active(Page::graph1) || is_active(Page::graph2)) return refresh();
  changed();
}

void Pages::parameter_changed(std::string_view keyword) {
  show_config_if_active();
  if (keyword == "Algadd_DefaultTableIndex") algadd_.refill();
  if (keyword == "Sums1_DefaultTableIndex") slds1_.give_up_edit();
  if (keyword == "Sums1_DefaultTableIndex" && is_active(Page::sums1)) {
    workbench_.sums1.range_changed(user_);
  } else if (shows(static_cast<Page>(workbench_.active_page), keyword) ||
             (keyword == "Sums1_DefaultTableIndex" && (is_active(Page::graph1) || is_active(Page::graph2)))) {
    refresh();
  }
  changed();
}

void Pages::file_renamed() {
  graph1_.file_renamed();
  graph2_.file_renamed();
}

void Pages::graph1_box_changed() {
  show_config_if_active();
  if (is_active(Page::graph1)) return redisplay([this] { graph1_.check_box_changed(); });
  changed();
}

void Pages::graph1_oplot_changed() {
  show_config_if_active();
  if (is_active(Page::graph1)) return redisplay([this] { graph1_.oplot_changed(); });
  changed();
}

void Pages::document_changed() {
  for (GridModel* grid : all()) grid->give_up_edit();
  algadd_.refill();
  refresh();
}

void Pages::slice_edited() {
  workbench_.restore_status_line(user_.progress);
  if (is_active(Page::lattices)) return changed();
  refresh();
}

std::string Pages::label(Page page) const {
  switch (page) {
    case Page::algadd:
      return table_summary(workbench_.document.algadd);
    case Page::sums1:
      return workbench_.sums1.label();
    case Page::sums2:
      return slsums2_.sums2().label();
    case Page::graph1:
      return graph1_.label();
    case Page::graph2:
      return graph2_.label();
    default:
      return {};
  }
}

}  // namespace kov
