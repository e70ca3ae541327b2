#include "graphs/graph1_page.h"

#include <algorithm>
#include <optional>

#include "graphs/curve_names.h"
#include "graphs/graph1_picture.h"
#include "graphs/legend.h"
#include "graphs/oplot.h"
#include "interact/scoped_flag.h"

namespace kov {
namespace {

constexpr const char* invitation = " Click on checkboxes to draw Sums1 along x";
constexpr const char* without_curves = " cnt=0";

std::string label_of(G1Outcome outcome) {
  switch (outcome) {
    case G1Outcome::store_empty:
      return "";
    case G1Outcome::no_pixel:
      return "No pixel";
    case G1Outcome::no_box_checked:
      return without_curves;
    case G1Outcome::no_different_x:
      return " no different x";
    case G1Outcome::broken:
    case G1Outcome::failed:
    case G1Outcome::calculated:
      break;
  }
  return invitation;
}

/// The smallest x value of the points that the ranges which are drawn have in a column.
std::optional<std::int32_t> first_x(const G1View& view, std::size_t column) {
  std::optional<std::int32_t> first;
  for (std::size_t range = 0; range < g1_range_count; ++range) {
    const std::optional<std::int32_t> x = view.par.range[range].first_x[column];
    if (x && view.draws_range(range)) first = std::min(first.value_or(*x), *x);
  }
  return first;
}

}  // namespace

void Graph1Page::show() {
  calculate();
  draw();
}

void Graph1Page::check_box_changed() {
  const bool common_scale = sources_.cph.kmi("Graph1_quick_xscale_r12_common") != 0;
  if (!common_scale || outcome_ != G1Outcome::calculated) calculate();
  draw();
}

/// The state is that of a page without a drawing until the calculation is complete, for whoever looks while
/// the progress box breathes.
void Graph1Page::calculate() {
  if (calculating_) return;
  const ScopedFlag calculating(calculating_);
  outcome_ = G1Outcome::broken;
  origin_ = {.table = sources_.tables.current_table(),
             .table_index = sources_.tables.current_index(),
             .divmode = sources_.cph.kmi("Graph1_divmode"),
             .file_name = sources_.file_name()};
  calculated_width_ = width_;
  calculated_height_ = height_;
  const G1Task task{sources_.lmap, origin_.table, sources_.cph, sources_.checked, width_, height_};
  outcome_ = calculate_and_report(task, par_, messages_, progress_);
}

void Graph1Page::draw() {
  const std::size_t curves = view().curves().size();
  if (drawn() && sources_.oplot && curves != 2) messages_.warning(oplot_complaint(curves));
  tell_changed();
}

void Graph1Page::file_renamed() {
  if (!drawn()) return;
  origin_.file_name = sources_.file_name();
  if (changed_) changed_();
}

void Graph1Page::set_image_size(int width, int height) {
  width_ = width;
  height_ = height;
}

void Graph1Page::fit(int width, int height, const TextMeasure& measure) {
  const PlotArea area = graph1_plot_area(view(), width, height, measure);
  set_image_size(static_cast<int>(area.width), static_cast<int>(area.height));
}

/// The height matters to no column, but an image without any has none.
bool Graph1Page::fits_calculation() const {
  return width_ == calculated_width_ && (height_ > 0) == (calculated_height_ > 0);
}

Picture Graph1Page::picture(int width, int height, const TextMeasure& measure) {
  fit(width, height, measure);
  if (!was_calculated()) {
    show();
  } else if (!fits_calculation()) {
    calculate();
    tell_changed();
  }
  if (!drawn()) return label_picture(width, height, label(), measure);
  return graph1_picture(view(), width, height, measure, messages_);
}

GraphTable Graph1Page::table() const {
  if (!drawn()) return {};
  const G1View seen = view();
  GraphTable table{.heading = {seen.x_name()}, .rows = {}};
  for (const std::size_t index : seen.curves()) table.heading.push_back(seen.name_of(index));
  for (std::size_t column = 0; column < static_cast<std::size_t>(par_.hpixcount); ++column) {
    const std::optional<std::int32_t> x = first_x(seen, column);
    if (!x) continue;
    std::vector<double>& row = table.rows.emplace_back(1, static_cast<double>(*x));
    for (const std::size_t index : seen.curves()) row.push_back(par_.curve(index).at[column]);
  }
  return table;
}

bool Graph1Page::drawn() const { return !calculating_ && outcome_ == G1Outcome::calculated && any_checked(); }

std::string Graph1Page::label() const {
  if (outcome_ == G1Outcome::calculated && !any_checked()) return without_curves;
  return label_of(outcome_);
}

std::string Graph1Page::group_caption(std::size_t range) const {
  return curve_group_caption(range, origin_.divmode);
}

G1View Graph1Page::view() const { return {par_, origin_, sources_.checked, sources_.cph, sources_.oplot}; }

bool Graph1Page::any_checked() const {
  return std::any_of(sources_.checked.begin(), sources_.checked.end(), [](bool box) { return box; });
}

}  // namespace kov
