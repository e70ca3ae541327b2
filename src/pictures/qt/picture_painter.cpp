#include "pictures/qt/picture_painter.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "pictures/qt/picture_font.h"
#include "pictures/qt/utf8_text.h"

namespace kov {
namespace {

QColor to_qt(Colour colour) { return QColor(colour.r, colour.g, colour.b); }

Qt::PenStyle to_qt(LineStyle style) {
  switch (style) {
    case LineStyle::solid:
      return Qt::SolidLine;
    case LineStyle::dashed:
      return Qt::DashLine;
    case LineStyle::dotted:
      return Qt::DotLine;
    case LineStyle::dash_dotted:
      return Qt::DashDotLine;
    case LineStyle::dash_dot_dotted:
      return Qt::DashDotDotLine;
  }
  return Qt::SolidLine;
}

bool is_whole(const Raster& raster) {
  return raster.width > 0 && raster.height > 0 &&
         raster.pixels.size() ==
             static_cast<std::size_t>(raster.width) * static_cast<std::size_t>(raster.height);
}

void paint(QPainter& painter, const Raster& raster) {
  if (!is_whole(raster)) return;
  // Looks into the raster's own memory.
  const QImage image(reinterpret_cast<const uchar*>(raster.pixels.data()), raster.width, raster.height,
                     raster.width * qsizetype{4}, QImage::Format_RGB32);
  painter.drawImage(QRectF(raster.left, raster.top, raster.width, raster.height), image);
}

void paint(QPainter& painter, const PictureBox& box) {
  painter.fillRect(QRectF(box.left, box.top, box.width, box.height), to_qt(box.colour));
}

/// Every piece of it is horizontal or vertical.
bool is_parallel_to_edges(const PictureLine& line) {
  return std::ranges::adjacent_find(line.points, [](PicturePoint a, PicturePoint b) {
           return a.x != b.x && a.y != b.y;
         }) == line.points.end();
}

/// Moves the middle of a line that is so many device pixels wide to where its edges lie between pixels.
double snapped(double middle, double scale, double device_width) {
  return (std::round(middle * scale - device_width / 2) + device_width / 2) / scale;
}

/// Moves the end of a line, seen from the point next to it, to an edge between pixels.
void snap_end(PicturePoint& end, PicturePoint original, PicturePoint next, double scale) {
  if (original.y == next.y) end.x = std::round(original.x * scale) / scale;
  if (original.x == next.x) end.y = std::round(original.y * scale) / scale;
}

bool is_closed(const PictureLine& line) {
  return line.points.size() > 2 && line.points.front() == line.points.back();
}

/// A line parallel to the edges on whole pixels of a device that has so many for one of the picture.
PictureLine on_device_pixels(const PictureLine& line, double scale) {
  PictureLine result = line;
  const double device_width = std::max(1.0, std::round(line.width * scale));
  result.width = device_width / scale;
  for (PicturePoint& point : result.points) {
    point = {snapped(point.x, scale, device_width), snapped(point.y, scale, device_width)};
  }
  if (is_closed(line)) return result;
  const std::vector<PicturePoint>& points = line.points;
  snap_end(result.points.front(), points.front(), points[1], scale);
  snap_end(result.points.back(), points.back(), points[points.size() - 2], scale);
  return result;
}

void paint_polyline(QPainter& painter, const PictureLine& line, Qt::PenJoinStyle join) {
  QPolygonF points;
  points.reserve(static_cast<qsizetype>(line.points.size()));
  for (const PicturePoint point : line.points) points.append(QPointF(point.x, point.y));
  painter.setPen(QPen(to_qt(line.colour), line.width, to_qt(line.style), Qt::FlatCap, join));
  painter.setBrush(Qt::NoBrush);
  is_closed(line) ? painter.drawPolygon(points) : painter.drawPolyline(points);
}

void paint_dot(QPainter& painter, const PictureLine& line) {
  const PicturePoint middle = line.points.front();
  const double radius = line.width / 2;
  painter.setPen(Qt::NoPen);
  painter.setBrush(to_qt(line.colour));
  painter.drawEllipse(QPointF(middle.x, middle.y), radius, radius);
}

void paint_parallel_line(QPainter& painter, const PictureLine& line) {
  const double scale = painter.device()->devicePixelRatio();
  PictureLine snapped_line = on_device_pixels(line, scale);
  // The raster engine draws lines of one pixel piece by piece, their corners paler. So much more makes it
  // join the pieces, and shows nowhere else.
  constexpr double joined = 1.0 / 1024;
  const bool raster = painter.paintEngine()->type() == QPaintEngine::Raster;
  if (raster && line.points.size() > 2) snapped_line.width += joined / scale;
  paint_polyline(painter, snapped_line, Qt::MiterJoin);
}

void paint(QPainter& painter, const PictureLine& line) {
  if (line.points.empty()) return;
  if (line.points.size() == 1) return paint_dot(painter, line);
  if (is_parallel_to_edges(line)) return paint_parallel_line(painter, line);
  paint_polyline(painter, line, Qt::BevelJoin);
}

void paint(QPainter& painter, const PictureText& text) {
  const QFont font = picture_font(text.size);
  const QFontMetricsF metrics(font);
  const QString characters = from_utf8(text.text);
  const double width = metrics.horizontalAdvance(characters);
  const double shift = text.anchor == Anchor::left ? 0 : text.anchor == Anchor::centre ? width / 2 : width;
  painter.save();
  painter.translate(text.at.x, text.at.y);
  if (text.upwards) painter.rotate(-90);
  painter.setFont(font);
  painter.setPen(to_qt(text.colour));
  // The middle of the line is half-way between its highest and its lowest point, not on its baseline.
  painter.drawText(QPointF(-shift, (metrics.ascent() - metrics.descent()) / 2), characters);
  painter.restore();
}

}  // namespace

void paint_picture(QPainter& painter, const Picture& picture) {
  painter.save();
  painter.setClipRect(QRect(0, 0, picture.width, picture.height), Qt::IntersectClip);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, false);
  painter.fillRect(QRect(0, 0, picture.width, picture.height), to_qt(picture.background));
  for (const Raster& raster : picture.rasters) paint(painter, raster);
  for (const PictureBox& box : picture.boxes) paint(painter, box);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  for (const PictureLine& line : picture.lines) paint(painter, line);
  for (const PictureText& text : picture.texts) paint(painter, text);
  painter.restore();
}

QImage picture_image(const Picture& picture, double device_pixel_ratio) {
  // A product that should be whole may miss it by rounding.
  constexpr double tolerance = 1E-6;
  const auto pixels = [&](int length) {
    return static_cast<int>(std::ceil(length * device_pixel_ratio - tolerance));
  };
  QImage image(pixels(picture.width), pixels(picture.height), QImage::Format_RGB32);
  if (image.isNull()) return image;
  image.setDevicePixelRatio(device_pixel_ratio);
  // What of a last pixel lies beyond the picture's edge.
  image.fill(to_qt(picture.background));
  QPainter painter(&image);
  paint_picture(painter, picture);
  return image;
}

}  // namespace kov
