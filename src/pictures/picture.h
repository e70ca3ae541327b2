#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kov {

/// Red, green and blue, 0..255 each.
struct Colour {
  std::uint8_t r = 0, g = 0, b = 0;
  friend bool operator==(const Colour&, const Colour&) = default;
};

/// A place in a picture, in pixels from its upper left corner: x to the right, y downwards. Whole numbers
/// are the edges between pixels: the pixel of the corner reaches from 0 to 1.
struct PicturePoint {
  double x = 0;
  double y = 0;
  friend bool operator==(const PicturePoint&, const PicturePoint&) = default;
};

enum class LineStyle { solid, dashed, dotted, dash_dotted, dash_dot_dotted };

/// A line through its points, not closed; a single point is a dot as wide as the line.
struct PictureLine {
  std::vector<PicturePoint> points;
  Colour colour;
  double width = 1;
  LineStyle style = LineStyle::solid;
};

/// A filled rectangle: a bar, a field of a legend.
struct PictureBox {
  double left = 0, top = 0, width = 0, height = 0;
  Colour colour;
};

/// Which end of a text stands at its point. In the other direction a text is always centred on its point.
enum class Anchor { left, centre, right };

/// One line of text of the picture's one font, size in pixels. One that runs upwards is turned by a
/// quarter, anchored left at its lower end.
struct PictureText {
  PicturePoint at;
  Anchor anchor = Anchor::left;
  std::string text;
  double size = 12;
  Colour colour;
  bool upwards = false;
};

/// A block of width * height opaque pixels as computed, 0xffRRGGBB, row by row from its upper left one.
struct Raster {
  int left = 0, top = 0, width = 0, height = 0;
  std::vector<std::uint32_t> pixels;
};

/// What a saved picture carries besides what it shows, such as the parameters that it was drawn with.
struct Note {
  std::string name;
  std::string text;
  friend bool operator==(const Note&, const Note&) = default;
};

/// No picture is wider or higher than this many pixels: painting loses exactness beyond, and an image would
/// take gigabytes.
inline constexpr int largest_picture_side = 16384;

/// A drawing as a value: computed and tested without a window, painted alike on a page, into a file and
/// onto the clipboard. Painted in the order of its members, each list from its front, and cut at its
/// own edges.
struct Picture {
  int width = 0, height = 0;
  Colour background{255, 255, 255};
  std::vector<Raster> rasters;
  std::vector<PictureBox> boxes;
  std::vector<PictureLine> lines;
  std::vector<PictureText> texts;
  std::vector<Note> notes;
};

}  // namespace kov
