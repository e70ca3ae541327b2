#include "pictures/qt/picture_files.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>
#include <QSvgGenerator>
#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "pictures/qt/picture_painter.h"
#include "pictures/qt/utf8_text.h"

namespace kov {
namespace {

void require_pixels(const Picture& picture) {
  if (picture.width < 1 || picture.height < 1) throw picture_error("A picture without pixels");
}

/// What an SVG viewer takes for the inch, so that pixels stay pixels.
constexpr int pixels_per_inch = 96;

/// Title and description of an SVG file.
QByteArray notes_as_elements(const std::vector<Note>& notes) {
  if (notes.empty()) return {};
  QString description;
  for (const Note& note : notes) description += from_utf8(note.name + ": " + note.text + "\n");
  return "<title>" + from_utf8(notes.front().text).toHtmlEscaped().toUtf8() + "</title>\n<desc>" +
         description.toHtmlEscaped().toUtf8() + "</desc>";
}

/// Puts them in the place of the generator's own title and description, which stand before anything else and
/// go into the file as they are, "<" and "&" included.
void replace_description(QByteArray& bytes, const QByteArray& elements) {
  static constexpr char first[] = "<title>", last[] = "</desc>";
  const qsizetype begin = bytes.indexOf(first);
  const qsizetype end = bytes.indexOf(last, begin) + qsizetype{sizeof last} - 1;
  bytes.replace(begin, end - begin, elements);
}

struct Format {
  std::string_view extension;
  QByteArray (*bytes)(const Picture& picture);
};

constexpr std::array<Format, 2> formats{{
    {".png", png_bytes},
    {".svg", svg_bytes},
}};

const Format* format_of(const std::filesystem::path& file) {
  std::string extension = file.extension().string();
  for (char& c : extension) {
    if ('A' <= c && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  const auto* const found = std::ranges::find(formats, extension, &Format::extension);
  return found == formats.end() ? nullptr : found;
}

[[noreturn]] void fail(const std::filesystem::path& file, const QString& reason) {
  throw picture_error("Cannot save " + file.string() + ":\n" + reason.toStdString());
}

}  // namespace

QByteArray png_bytes(const Picture& picture) {
  require_pixels(picture);
  QImage image = picture_image(picture);
  if (image.isNull()) throw picture_error("Not enough memory for the picture");
  for (const Note& note : picture.notes) image.setText(from_utf8(note.name), from_utf8(note.text));
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QImageWriter writer(&buffer, "png");
  if (!writer.write(image)) throw picture_error(writer.errorString().toStdString());
  return bytes;
}

QByteArray svg_bytes(const Picture& picture) {
  require_pixels(picture);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QSvgGenerator generator;
  generator.setTitle(QStringLiteral("title"));
  generator.setDescription(QStringLiteral("description"));
  generator.setOutputDevice(&buffer);
  generator.setSize(QSize(picture.width, picture.height));
  generator.setViewBox(QRect(0, 0, picture.width, picture.height));
  generator.setResolution(pixels_per_inch);
  QPainter painter(&generator);
  paint_picture(painter, picture);
  painter.end();
  replace_description(bytes, notes_as_elements(picture.notes));
  return bytes;
}

bool is_picture_name(const std::filesystem::path& file) { return format_of(file) != nullptr; }

void save_picture(const Picture& picture, const std::filesystem::path& file) {
  const Format* const format = format_of(file);
  if (format == nullptr) fail(file, QStringLiteral("The name of a picture ends in .png or .svg"));
  const QByteArray bytes = format->bytes(picture);
  QSaveFile target(QFile::decodeName(file.c_str()));
  if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size() || !target.commit()) {
    fail(file, target.errorString());
  }
}

}  // namespace kov
