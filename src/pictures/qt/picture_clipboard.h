#pragma once

#include <memory>

#include "pictures/picture.h"

class QMimeData;

namespace kov {

/// The picture for the clipboard: as an image, and as an SVG for programs that can scale it. Throws
/// picture_error as the files do.
std::unique_ptr<QMimeData> picture_mime_data(const Picture& picture);

}  // namespace kov
