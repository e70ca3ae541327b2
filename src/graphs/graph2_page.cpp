#include "graphs/graph2_page.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <new>
#include <vector>

#include "graphs/curve_names.h"
#include "graphs/graph2_table.h"
#include "graphs/legend.h"
#include "graphs/map_raster.h"
#include "interact/scoped_flag.h"
#include "numbers/errors.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr const char* radio_keyword = "Graph2_RB_re_im_qa_qq_cntAt_12";

/// Megabytes that the largest map takes, rounded.
constexpr std::size_t megabyte = std::size_t{1} << 20U;
constexpr std::size_t drawing_bytes =
    std::size_t{max_hpixcount} * max_vpixcount * sizeof(double) + sizeof(Graph2Drawing);
constexpr auto drawing_megabytes = static_cast<std::int64_t>((drawing_bytes + megabyte / 2) / megabyte);

ColourScale scale_of(const ValueMap& map, const cphclass& cph, Messages& messages) {
  ColourScale scale(ColourRamp::read(cph));
  std::vector<double> values = map.values();
  if (cph.kmi("Graph2_color_distribution") == 0) {
    scale.Set_equally_distributed_fclimit(std::move(values), messages);
  } else {
    const auto [smallest, largest] = std::minmax_element(values.begin(), values.end());
    scale.set_linear_fclimit(*smallest, *largest);
  }
  return scale;
}

std::string math_error_text(const std::exception& error) {
  return std::string(" MathError when calculating Graph2: \n") + error.what();
}

}  // namespace

Graph2Page::Graph2Page(Sources sources, User user) : sources_(std::move(sources)), user_(user) {}

void Graph2Page::shown() {
  if (Graph2_deviating_RB_state()) choose_radio(sources_.cph.kmi(radio_keyword));
  redraw();
}

bool Graph2Page::Graph2_deviating_RB_state() const {
  const std::int32_t index = sources_.cph.kmi(radio_keyword);
  if (index < 0 || index >= MapChoice::count) {
    user_.messages.error("Graph2_deviating_RB_state: Invalid default index: \nkmi(\"" +
                         std::string(radio_keyword) + "\")=" + int_text(index));
    return false;
  }
  return index != sources_.radio_index;
}

void Graph2Page::choose_radio(int index) {
  sources_.radio_index = index;
  if (sources_.cph.kmi("Graph2_RB_state_saving") != 0) sources_.cph.setkmi_1(radio_keyword, index);
}

void Graph2Page::radio(int index) {
  choose_radio(index);
  if (calculated_) redraw();
}

void Graph2Page::release() {
  if (calculating_) return;
  drawing_.reset();
  calculated_.reset();
  label_.clear();
}

void Graph2Page::fit(int width, int height, const TextMeasure& measure) {
  const PlotArea area = graph2_plot_area(sources_.cph, width, height, measure);
  set_image({static_cast<int>(area.width), static_cast<int>(area.height)});
}

Picture Graph2Page::picture(int width, int height, const TextMeasure& measure) {
  fit(width, height, measure);
  if (calculated_ != image_) redraw();
  if (!drawn()) return label_picture(width, height, label_, measure);
  return graph2_picture(*drawing_, sources_.cph, width, height, measure, user_.messages);
}

void Graph2Page::redraw() {
  if (calculating_) return;
  calculated_.reset();
  label_.clear();
  const ImageSize image = image_;
  {
    const ScopedFlag calculating(calculating_);
    label_ = calculate_and_draw();
  }
  calculated_ = image;
  if (changed_) changed_();
}

void Graph2Page::draw_curves_anew() {
  if (!drawn() || !drawing_->stack) return;
  drawing_->stack =
      PlotMultiple1DGraphsOnGimage2(drawing_->map, sources_.states, sources_.cph, user_.messages);
  if (changed_) changed_();
}

void Graph2Page::file_renamed() {
  if (!drawn()) return;
  drawing_->origin.file_name = sources_.file_name();
  if (changed_) changed_();
}

std::string Graph2Page::calculate_and_draw() {
  try {
    if (!drawing_) drawing_ = std::make_unique<Graph2Drawing>();
  } catch (const std::bad_alloc&) {
    return fail("Allocation of " + int_text(drawing_megabytes) + " MB not possible,\nnot enough free memory");
  }
  try {
    // Around all of it, so that a Break in the first pass also counts for whatever runs this.
    const ProgressBox box(user_.progress, 0, static_cast<std::int64_t>(sources_.lmap.count()));
    std::string label = calculate();
    return label.empty() ? draw() : label;
  } catch (const math_error& error) {
    return fail(math_error_text(error));
  } catch (const ratyp_error& error) {
    return fail(math_error_text(error));
  } catch (...) {
    return fail("Error when calculating Graph2");
  }
}

std::string Graph2Page::fail(const std::string& text) {
  user_.messages.error(text);
  return text;
}

std::string Graph2Page::calculate() {
  const RangeTables& tables = sources_.tables;
  const cphclass& cph = sources_.cph;
  drawing_->origin = {.table = tables.current_table(),
                      .table_index = tables.current_index(),
                      .file_name = sources_.file_name(),
                      .divided = cph.kmi("Graph2_divide_y_by_count") != 0};
  const MapChoice choice = MapChoice::of_radio(sources_.radio_index);
  return Calc_v_from_lgl(sources_.lmap, tables.current_table(), choice, image_, cph, user_, drawing_->map);
}

std::string Graph2Page::draw() {
  const cphclass& cph = sources_.cph;
  Graph2Drawing& drawing = *drawing_;
  drawing.raster.reset();
  drawing.stack.reset();
  drawing.scale = scale_of(drawing.map, cph, user_.messages);
  if (cph.kmi("Graph2a_ny") != 0) {
    drawing.stack = PlotMultiple1DGraphsOnGimage2(drawing.map, sources_.states, cph, user_.messages);
    return drawing.stack ? "" : "PlotMultiple1DGraphsOnGimage2: nyabs>nyabs_max";
  }
  if (!drawing.scale.ramp().valid()) user_.messages.error(drawing.scale.ramp().complaint());
  drawing.raster = map_raster(drawing.map, drawing.scale, cph.kmi("Graph2_BoxDoubleWidth") != 0,
                              cph.kmi("Graph2_LineCountPerDisplay"), user_.progress);
  return drawing.raster ? "" : map_stopped_text;
}

std::string Graph2Page::caption(std::size_t range) const {
  return curve_group_caption(range, sources_.cph.kmi("Graph2_divide_y_by_count") != 0 ? 1 : 0);
}

std::optional<std::int32_t> Graph2Page::y_of_curve(int curve) const {
  if (!drawn() || !drawing_->stack) return std::nullopt;
  const auto index = static_cast<std::size_t>(curve);
  const auto& curves = drawing_->stack->curves;
  return index < curves.size() ? std::optional(curves[index].y) : std::nullopt;
}

GraphTable Graph2Page::table() const { return drawn() ? graph2_table(*drawing_) : GraphTable{}; }

}  // namespace kov
