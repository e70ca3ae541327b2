#include "graphs/graph1_picture.h"

#include <algorithm>

#include "graphs/bars.h"
#include "graphs/curve_style.h"
#include "graphs/legend.h"
#include "graphs/oplot.h"
#include "graphs/value_interval.h"

namespace kov {
namespace {

GridOptions options_of(const G1View& view) {
  return grid_options(view.cph, view.black_and_white() ? grid_mode_black_white : grid_mode_paper);
}

std::vector<CurveEntry> legend_of(const G1View& view) {
  std::vector<CurveEntry> entries;
  for (const std::size_t index : view.curves()) {
    const CurveStyle style = curve_style(index, view.black_and_white());
    entries.push_back({view.name_of(index), style.colour, style.width, style.style});
  }
  return entries;
}

/// Curves that are drawn against each other are named at the axes.
bool has_legend(const G1View& view) { return !view.draws_oplot() && !view.curves().empty(); }

/// Room for title and legend.
double height_above(const G1View& view, double width, const TextMeasure& measure) {
  const double legend = has_legend(view) ? curve_legend_height(legend_of(view), width, measure) : 0;
  return title_height(measure) + legend;
}

/// Title and legend, unless the picture is so small that the plot has taken their room.
void draw_above(Picture& picture, const PlotArea& area, const G1View& view, const TextMeasure& measure) {
  if (area.top < height_above(view, area.width, measure)) return;
  draw_title(picture, area, view.title(), measure);
  if (!has_legend(view)) return;
  draw_curve_legend(picture, {area.left, title_height(measure)}, area.width, legend_of(view), measure);
}

ValueInterval interval_of(const G1View& view, const std::vector<std::size_t>& curves) {
  const auto own = [&](std::size_t index) {
    const G1Curve& curve = view.par.curve(index);
    return ValueInterval{curve.min, curve.max};
  };
  ValueInterval interval = own(curves.front());
  for (const std::size_t index : curves) interval = interval.joined(own(index));
  return interval.zoomed(view.cph.kmi("Graph_y_border_percent"));
}

double y_in(const PlotArea& area, const ValueInterval& values, double value) {
  return area.top + area.height * (1 - values.place_of(value));
}

/// From pixels of the image as calculated to those of the plot.
double x_in(const PlotArea& area, const G1Par& par, double x) {
  return area.left + x * (area.width / par.hpixcount);
}

/// The area between a curve and zero, bar by bar.
void fill_bars(Picture& picture, const PlotArea& area, const G1View& view, const std::vector<Bar>& bars,
               const ValueInterval& values, const Colour& colour) {
  const double zero = y_in(area, values, std::clamp(0.0, values.min, values.max));
  for (const Bar& bar : bars) {
    if (bar.value == 0) continue;
    const double left = x_in(area, view.par, bar.left);
    const double top = y_in(area, values, bar.value);
    picture.boxes.push_back({.left = left,
                             .top = std::min(top, zero),
                             .width = x_in(area, view.par, bar.right) - left,
                             .height = std::max(top, zero) - std::min(top, zero),
                             .colour = tinted(colour)});
  }
}

void draw_curve(Picture& picture, const PlotArea& area, const G1View& view, std::size_t index,
                const ValueInterval& values) {
  const bool vertical_edges = view.cph.kmi("Graph_BarsEdgesVertical") != 0;
  const CurveStyle style = curve_style(index, view.black_and_white());
  const std::vector<Bar> bars = bars_of(view.par, view.par.curve(index));
  if (vertical_edges && view.curves().size() == 1 && !view.black_and_white()) {
    fill_bars(picture, area, view, bars, values, style.colour);
  }
  PictureLine line{.points = {}, .colour = style.colour, .width = style.width, .style = style.style};
  for (const CurvePoint& point : line_of_bars(bars, view.par.hpixcount, vertical_edges)) {
    line.points.push_back({x_in(area, view.par, point.x), y_in(area, values, point.value)});
  }
  picture.lines.push_back(std::move(line));
}

void draw_along_x(Picture& picture, const PlotArea& area, const G1View& view, const TextMeasure& measure,
                  Messages& messages) {
  const std::vector<std::size_t> curves = view.curves();
  const ValueInterval values = interval_of(view, curves);
  const PlotAxis x{.from = static_cast<double>(view.par.xmin),
                   .to = static_cast<double>(view.par.xmax),
                   .name = view.x_name(),
                   .whole = true};
  const PlotAxis y{.from = values.min, .to = values.max, .name = view.y_name()};
  DrawGrid(picture, area, x, y, options_of(view), measure, messages);
  for (const std::size_t index : curves) draw_curve(picture, area, view, index, values);
}

/// Points as small squares, joined in the order of x.
void draw_pairs(Picture& picture, const std::vector<PicturePoint>& points, const CurveStyle& style) {
  constexpr double side = 4;
  for (const PicturePoint& point : points) {
    picture.boxes.push_back({point.x - side / 2, point.y - side / 2, side, side, style.colour});
  }
  if (!points.empty()) picture.lines.push_back({.points = points, .colour = style.colour});
}

void draw_oplot(Picture& picture, const PlotArea& area, const G1View& view, const TextMeasure& measure,
                Messages& messages) {
  const std::size_t first = view.curves().front();
  const std::size_t second = view.curves().back();
  const ValueInterval across = interval_of(view, {first});
  const ValueInterval up = interval_of(view, {second});
  DrawGrid(picture, area, {.from = across.min, .to = across.max, .name = view.name_of(first)},
           {.from = up.min, .to = up.max, .name = view.name_of(second)}, options_of(view), measure, messages);
  std::vector<PicturePoint> points;
  for (const CurvePair& pair : oplot_pairs(view.par, view.par.curve(first), view.par.curve(second),
                                           view.cph.kmi("Graph1_oplot_skip_zeros"))) {
    points.push_back({area.left + area.width * across.place_of(pair.first), y_in(area, up, pair.second)});
  }
  draw_pairs(picture, points, curve_style(0, view.black_and_white()));
}

}  // namespace

PlotArea graph1_plot_area(const G1View& view, int width, int height, const TextMeasure& measure) {
  const GridOptions options = options_of(view);
  const PlotArea untitled = plot_area(width, height, options, measure);
  return plot_area(width, height, options, measure, {.above = height_above(view, untitled.width, measure)});
}

Picture graph1_picture(const G1View& view, int width, int height, const TextMeasure& measure,
                       Messages& messages) {
  Picture picture;
  picture.width = width;
  picture.height = height;
  const PlotArea area = graph1_plot_area(view, width, height, measure);
  draw_above(picture, area, view, measure);
  if (view.draws_oplot()) {
    draw_oplot(picture, area, view, measure, messages);
  } else {
    draw_along_x(picture, area, view, measure, messages);
  }
  return picture;
}

}  // namespace kov
