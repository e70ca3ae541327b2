#pragma once

#include <QByteArray>
#include <filesystem>

#include "pictures/picture.h"
#include "pictures/picture_writer.h"

namespace kov {

/// The picture as a PNG file whose text chunks are its notes. Throws picture_error when the picture has no
/// pixels or there is no memory for it.
QByteArray png_bytes(const Picture& picture);

/// Likewise as an SVG file. Its title is the first note's text, its description has every note on a line of
/// its own.
QByteArray svg_bytes(const Picture& picture);

/// Whether a file of this name can be a picture: ".png" or ".svg", in any case.
bool is_picture_name(const std::filesystem::path& file);

/// Writes the picture in the format of the file's name, whole or not at all: it goes into a new file that
/// takes the old one's place when it is complete. Throws picture_error.
void save_picture(const Picture& picture, const std::filesystem::path& file);

}  // namespace kov
