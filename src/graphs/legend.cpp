#include "graphs/legend.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include "graphs/axis_ticks.h"

namespace kov {
namespace {

/// Distances and lengths in pixels.
constexpr double gap = 4;
constexpr double sample_length = 36;
constexpr double entry_gap = 16;
constexpr double field_width = 16;
constexpr double plot_gap = 12;

constexpr Colour text_colour{30, 30, 30};
constexpr std::string_view ellipsis = "\u2026";

bool continues_character(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

double row_height(const TextMeasure& measure) { return std::ceil(measure.height(graph_text_size)) + gap; }

/// Where the entries of a curve legend are: the name of each, cut to what there is room for, and the left
/// end of its sample.
struct PlacedEntry {
  std::string name;
  double left = 0;
  int row = 0;
};

std::vector<PlacedEntry> placed(std::span<const CurveEntry> entries, double width,
                                const TextMeasure& measure) {
  std::vector<PlacedEntry> result;
  double left = 0;
  int row = 0;
  for (const CurveEntry& entry : entries) {
    std::string name = fitted_text(entry.name, width - sample_length - gap, graph_text_size, measure);
    const double length = sample_length + gap + std::ceil(measure.width(name, graph_text_size));
    if (left > 0 && left + length > width) {
      left = 0;
      ++row;
    }
    result.push_back({std::move(name), left, row});
    left += length + entry_gap;
  }
  return result;
}

/// The fields whose texts keep apart: every so many, so that the first and the last are among them.
int field_stride(double field_height, double text_height) {
  static constexpr std::array<int, 6> strides = {1, 2, 4, 5, 10, 20};
  const auto* const wide_enough =
      std::ranges::find_if(strides, [&](int stride) { return stride * field_height >= text_height + 2; });
  return wide_enough == strides.end() ? 0 : *wide_enough;
}

}  // namespace

std::string fitted_text(std::string_view text, double room, double size, const TextMeasure& measure) {
  if (measure.width(text, size) <= room) return std::string(text);
  for (std::size_t length = text.size(); length > 0;) {
    do --length;
    while (length > 0 && continues_character(text[length]));
    std::string cut = std::string(text.substr(0, length)) + std::string(ellipsis);
    if (measure.width(cut, size) <= room) return cut;
  }
  return {};
}

double title_height(const TextMeasure& measure) { return std::ceil(measure.height(graph_title_size)) + gap; }

void draw_title(Picture& picture, const PlotArea& area, std::string_view title, const TextMeasure& measure) {
  if (area.top < title_height(measure)) return;
  const double room = picture.width - area.left - gap;
  std::string text = fitted_text(title, room, graph_title_size, measure);
  if (text.empty()) return;
  picture.texts.push_back({{area.left, gap / 2 + std::ceil(measure.height(graph_title_size)) / 2},
                           Anchor::left,
                           std::move(text),
                           graph_title_size,
                           text_colour});
}

double curve_legend_height(std::span<const CurveEntry> entries, double width, const TextMeasure& measure) {
  if (entries.empty()) return 0;
  return (placed(entries, width, measure).back().row + 1) * row_height(measure);
}

void draw_curve_legend(Picture& picture, PicturePoint corner, double width,
                       std::span<const CurveEntry> entries, const TextMeasure& measure) {
  const std::vector<PlacedEntry> places = placed(entries, width, measure);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const CurveEntry& entry = entries[i];
    const double left = corner.x + places[i].left;
    const double middle = std::floor(corner.y + (places[i].row + 0.5) * row_height(measure)) + 0.5;
    picture.lines.push_back(
        {{{left, middle}, {left + sample_length, middle}}, entry.colour, entry.width, entry.style});
    if (places[i].name.empty()) continue;
    picture.texts.push_back(
        {{left + sample_length + gap, middle}, Anchor::left, places[i].name, graph_text_size, text_colour});
  }
}

double colour_legend_width(int digits, const TextMeasure& measure) {
  return plot_gap + field_width + gap + std::ceil(measure.width(widest_number(digits), graph_text_size)) +
         gap;
}

void draw_colour_legend(Picture& picture, const PlotArea& area, std::span<const ColourField> fields,
                        const TextMeasure& measure) {
  const double left = area.left + area.width + plot_gap;
  if (fields.empty() || left + field_width > picture.width) return;
  const double height = area.height / static_cast<double>(fields.size());
  const int stride = field_stride(height, measure.height(graph_text_size));
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const double bottom = std::round(area.top + area.height - static_cast<double>(i) * height);
    const double top = std::round(area.top + area.height - static_cast<double>(i + 1) * height);
    picture.boxes.push_back({left, top, field_width, bottom - top, fields[i].colour});
    if (stride == 0 || i % static_cast<std::size_t>(stride) != 0) continue;
    const double text_left = left + field_width + gap;
    std::string text = fitted_text(fields[i].text, picture.width - text_left, graph_text_size, measure);
    if (text.empty()) continue;
    picture.texts.push_back(
        {{text_left, (top + bottom) / 2}, Anchor::left, std::move(text), graph_text_size, text_colour});
  }
}

Picture label_picture(int width, int height, std::string_view label, const TextMeasure& measure) {
  Picture picture;
  picture.width = width;
  picture.height = height;
  std::string text = fitted_text(label, width, graph_title_size, measure);
  if (!text.empty() && measure.height(graph_title_size) <= height) {
    picture.texts.push_back(
        {{width / 2.0, height / 2.0}, Anchor::centre, std::move(text), graph_title_size, text_colour});
  }
  return picture;
}

}  // namespace kov
