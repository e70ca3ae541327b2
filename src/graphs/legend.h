#pragma once

#include <span>
#include <string>
#include <string_view>

#include "graphs/axis_grid.h"
#include "pictures/picture.h"
#include "pictures/text_measure.h"

namespace kov {

/// Size of all texts in graphs, in pixels; titles are larger.
inline constexpr double graph_text_size = 12;
inline constexpr double graph_title_size = 14;

/// The text, or as much of it as fits into the room in pixels, with an ellipsis behind it; empty when not
/// even that fits. Cuts UTF-8 between characters.
std::string fitted_text(std::string_view text, double room, double size, const TextMeasure& measure);

/// Height of the band that a title needs above everything else.
double title_height(const TextMeasure& measure);
/// The title, above the plot, at the top of the picture; a long one is cut to the picture's width. None where
/// the plot leaves no room for it.
void draw_title(Picture& picture, const PlotArea& area, std::string_view title, const TextMeasure& measure);

/// A curve of a legend: a sample of its line, and its name.
struct CurveEntry {
  std::string name;
  Colour colour;
  double width = 1;
  LineStyle style = LineStyle::solid;
};

/// Height of the band that these curves' legend needs in this width: entries side by side, in as many
/// lines as it takes.
double curve_legend_height(std::span<const CurveEntry> entries, double width, const TextMeasure& measure);
/// Draws it with its upper left corner there.
void draw_curve_legend(Picture& picture, PicturePoint corner, double width,
                       std::span<const CurveEntry> entries, const TextMeasure& measure);

/// The fields of the colour legend, Label_g2_color0 ... Label_g2_color20.
inline constexpr int colour_field_count = 21;

/// One of them: a value of the scale and its colour.
struct ColourField {
  Colour colour;
  std::string text;
};

/// Width of the colour legend, its distance to the plot included, for numbers of so many significant
/// digits, whatever their values.
double colour_legend_width(int digits, const TextMeasure& measure);
/// Draws the fields to the right of the plot, the first one at its lower end. Where the fields are lower
/// than a text, only every second, fourth, fifth, tenth or twentieth has its text. Nothing where the plot
/// leaves no room.
void draw_colour_legend(Picture& picture, const PlotArea& area, std::span<const ColourField> fields,
                        const TextMeasure& measure);

/// What a graph page shows while nothing is drawn: its label in the middle of an empty picture.
Picture label_picture(int width, int height, std::string_view label, const TextMeasure& measure);

}  // namespace kov
