#include "graphs/axis_grid.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "graphs/axis_ticks.h"
#include "graphs/legend.h"
#include "text/integers.h"

namespace kov {
namespace {

/// Distances in pixels.
constexpr double between_numbers = 6;
constexpr double tick_length = 4;
constexpr double number_gap = 6;
constexpr double name_gap = 2;
constexpr double outer_gap = 4;
/// Lines nearer to each other than this would be a field of colour.
constexpr double nearest_lines = 4;

constexpr Colour black{0, 0, 0};

struct GridLook {
  Colour line;
  LineStyle style;
  Colour frame;
  Colour text;
};

/// By colour mode: over a map, a colour that none of its ramps has and that shows on white, too.
// clang-format off
constexpr std::array<GridLook, 6> looks{{
    {{200, 110, 0},   LineStyle::dotted, {60, 60, 60}, {30, 30, 30}},
    {{40, 90, 220},   LineStyle::dotted, {60, 60, 60}, {30, 30, 30}},
    {{190, 0, 170},   LineStyle::dotted, {60, 60, 60}, {30, 30, 30}},
    {{0, 140, 60},    LineStyle::dotted, {60, 60, 60}, {30, 30, 30}},
    {{222, 222, 222}, LineStyle::solid,  {90, 90, 90}, {30, 30, 30}},
    {black,           LineStyle::dotted, black,        black},
}};
// clang-format on

const GridLook& look_of(int colour_mode, Messages& messages) {
  if (0 <= colour_mode && colour_mode < static_cast<int>(looks.size())) {
    return looks[static_cast<std::size_t>(colour_mode)];
  }
  messages.error("DrawGrid: invalid colormode");
  return looks[grid_mode_paper];
}

/// The room for numbers of so many digits, and for every coordinate.
double number_room(int digits, const TextMeasure& measure) {
  return std::ceil(std::max(measure.width(widest_number(digits), graph_text_size),
                            measure.width(int_text(lowest_int), graph_text_size)));
}

struct Margins {
  double left, right, above, below;
};

/// The numbers of the x axis start below those of the y axis, of which the lowest reaches below the plot
/// by half of its height.
Margins axis_margins(const GridOptions& options, const TextMeasure& measure) {
  const double text = std::ceil(measure.height(graph_text_size));
  const double number = number_room(options.digits, measure);
  const double half_text = std::ceil(text / 2);
  return {outer_gap + text + number_gap + number + number_gap, std::ceil(number / 2) + outer_gap,
          half_text + outer_gap, half_text + name_gap + text + name_gap + text + outer_gap};
}

/// A rectangle that a text takes, for keeping texts apart.
struct Extent {
  double low = 0;
  double high = 0;
};

/// A number beside its tick: where its centre is along the axis, in pixels of the picture, and how far it
/// reaches.
struct PlacedNumber {
  std::string text;
  std::int64_t index = 0;
  double centre = 0;
  Extent extent;
};

bool keep_apart(const std::vector<PlacedNumber>& numbers, std::int64_t stride) {
  std::optional<double> end;
  for (const PlacedNumber& number : numbers) {
    if (number.index % stride != 0) continue;
    if (end && number.extent.low < *end + between_numbers) return false;
    end = number.extent.high;
  }
  return true;
}

/// Every number, or every second, fifth, tenth ...: the first choice with which they keep apart.
std::vector<PlacedNumber> thinned(std::vector<PlacedNumber> numbers) {
  std::ranges::sort(numbers, {}, [](const PlacedNumber& number) { return number.extent.low; });
  std::int64_t stride = 1;
  for (int i = 0; !keep_apart(numbers, stride); ++i) {
    stride = i % 3 == 1 ? stride / 2 * 5 : stride * 2;
  }
  std::erase_if(numbers, [&](const PlacedNumber& number) { return number.index % stride != 0; });
  return numbers;
}

/// The middle of the pixel in which a place of the plot lies, so that a line is one pixel wide and sharp.
double pixel_middle(double edge, double length, double place) {
  const double last = std::max(0.0, std::ceil(length) - 1);
  return edge + std::clamp(std::floor(place * length), 0.0, last) + 0.5;
}

/// One drawing of a grid: what is drawn onto, and with what.
class GridPainter {
 public:
  GridPainter(Picture& picture, const PlotArea& area, const GridOptions& options, const TextMeasure& measure,
              const GridLook& look)
      : picture_(picture),
        area_(area),
        options_(options),
        measure_(measure),
        look_(look),
        text_height_(std::ceil(measure.height(graph_text_size))) {}

  void draw_x(const PlotAxis& axis) {
    const auto ticks = ticks_of(axis, options_.lines_x, area_.width);
    for (const Tick& tick : ticks) {
      const double x = pixel_middle(area_.left, area_.width, tick.place);
      line({x, area_.top}, {x, bottom()}, look_.line, look_.style);
      line({x, bottom()}, {x, bottom() + tick_length}, look_.frame);
    }
    const double top = bottom() + std::ceil(text_height_ / 2) + name_gap;
    if (top + text_height_ > picture_.height) return;
    for (const PlacedNumber& number : thinned(x_numbers(axis, ticks))) {
      text({number.centre, top + text_height_ / 2}, Anchor::centre, number.text);
    }
    draw_x_name(axis.name, top + text_height_ + name_gap);
  }

  void draw_y(const PlotAxis& axis) {
    const auto ticks = ticks_of(axis, options_.lines_y, area_.height);
    for (const Tick& tick : ticks) {
      const double y = pixel_middle(area_.top, area_.height, 1 - tick.place);
      line({area_.left, y}, {right(), y}, look_.line, look_.style);
      line({area_.left - tick_length, y}, {area_.left, y}, look_.frame);
    }
    double widest = 0;
    for (const PlacedNumber& number : thinned(y_numbers(axis, ticks))) {
      text({area_.left - number_gap, number.centre}, Anchor::right, number.text);
      widest = std::max(widest, std::ceil(measure_.width(number.text, graph_text_size)));
    }
    draw_y_name(axis.name, area_.left - number_gap - widest - number_gap);
  }

  void draw_frame() {
    const double left = area_.left - 0.5, top = area_.top - 0.5;
    picture_.lines.push_back({{{left, top},
                               {right() + 0.5, top},
                               {right() + 0.5, bottom() + 0.5},
                               {left, bottom() + 0.5},
                               {left, top}},
                              look_.frame});
  }

 private:
  double right() const { return area_.left + area_.width; }
  double bottom() const { return area_.top + area_.height; }

  std::vector<Tick> ticks_of(const PlotAxis& axis, int wanted, double length) const {
    const int most = static_cast<int>(length / nearest_lines);
    return axis_ticks(axis.from, axis.to, {std::min(wanted, most), axis.whole, options_.round_values});
  }

  std::vector<PlacedNumber> x_numbers(const PlotAxis& axis, const std::vector<Tick>& ticks) const {
    const double room = number_room(options_.digits, measure_);
    const auto fits = [&](const std::string& text) { return measure_.width(text, graph_text_size) <= room; };
    const auto texts = tick_numbers(ticks, axis.whole, options_.digits, fits);
    std::vector<PlacedNumber> numbers;
    for (std::size_t i = 0; i < ticks.size(); ++i) {
      const double centre = pixel_middle(area_.left, area_.width, ticks[i].place);
      const double half = measure_.width(texts[i], graph_text_size) / 2;
      if (texts[i].empty() || centre - half < 0 || centre + half > picture_.width) continue;
      numbers.push_back({texts[i], ticks[i].index, centre, {centre - half, centre + half}});
    }
    return numbers;
  }

  std::vector<PlacedNumber> y_numbers(const PlotAxis& axis, const std::vector<Tick>& ticks) const {
    const double room = std::min(number_room(options_.digits, measure_), area_.left - number_gap);
    const auto fits = [&](const std::string& text) { return measure_.width(text, graph_text_size) <= room; };
    const auto texts = tick_numbers(ticks, axis.whole, options_.digits, fits);
    std::vector<PlacedNumber> numbers;
    for (std::size_t i = 0; i < ticks.size(); ++i) {
      const double centre = pixel_middle(area_.top, area_.height, 1 - ticks[i].place);
      const double half = text_height_ / 2;
      if (texts[i].empty() || centre - half < 0 || centre + half > picture_.height) continue;
      numbers.push_back({texts[i], ticks[i].index, centre, {centre - half, centre + half}});
    }
    return numbers;
  }

  void draw_x_name(const std::string& name, double top) {
    if (top + text_height_ > picture_.height) return;
    const std::string fitted = fitted_text(name, area_.width, graph_text_size, measure_);
    if (fitted.empty()) return;
    text({area_.left + area_.width / 2, top + text_height_ / 2}, Anchor::centre, fitted);
  }

  /// Running upwards, its lower side there.
  void draw_y_name(const std::string& name, double right_edge) {
    if (right_edge < text_height_) return;
    const std::string fitted = fitted_text(name, area_.height, graph_text_size, measure_);
    if (fitted.empty()) return;
    text({right_edge - text_height_ / 2, area_.top + area_.height / 2}, Anchor::centre, fitted);
    picture_.texts.back().upwards = true;
  }

  void line(PicturePoint from, PicturePoint to, Colour colour, LineStyle style = LineStyle::solid) {
    picture_.lines.push_back({{from, to}, colour, 1, style});
  }

  void text(PicturePoint at, Anchor anchor, std::string characters) {
    picture_.texts.push_back({at, anchor, std::move(characters), graph_text_size, look_.text});
  }

  Picture& picture_;
  const PlotArea& area_;
  const GridOptions& options_;
  const TextMeasure& measure_;
  const GridLook& look_;
  double text_height_;
};

}  // namespace

GridOptions grid_options(const cphclass& cph, int colour_mode) {
  return {cph.kmi("Graph_Gridlines_x"), cph.kmi("Graph_Gridlines_y"), cph.kmi("Graph_Gridlines_Auto") != 0,
          cph.kmi("Graph_num_precision"), colour_mode};
}

PlotArea plot_area(int width, int height, const GridOptions& options, const TextMeasure& measure,
                   const PlotMargins& margins) {
  const Margins axes = axis_margins(options, measure);
  const double top = std::ceil(margins.above) + axes.above;
  const double plot_width = width - axes.left - std::max(axes.right, std::ceil(margins.right));
  const double plot_height = height - top - axes.below;
  if (plot_width < width / 2.0 || plot_height < height / 2.0) {
    return {0, 0, static_cast<double>(width), static_cast<double>(height)};
  }
  return {axes.left, top, plot_width, plot_height};
}

void DrawGrid(Picture& picture, const PlotArea& area, const PlotAxis& x, const PlotAxis& y,
              const GridOptions& options, const TextMeasure& measure, Messages& messages) {
  GridPainter painter(picture, area, options, measure, look_of(options.colour_mode, messages));
  painter.draw_x(x);
  painter.draw_y(y);
  painter.draw_frame();
}

}  // namespace kov
