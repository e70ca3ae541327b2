#include "pictures/qt/picture_clipboard.h"

#include <QMimeData>

#include "pictures/picture_writer.h"
#include "pictures/qt/picture_files.h"
#include "pictures/qt/picture_painter.h"

namespace kov {

std::unique_ptr<QMimeData> picture_mime_data(const Picture& picture) {
  const QImage image = picture_image(picture);
  if (image.isNull()) throw picture_error("Not enough memory for the picture");
  auto data = std::make_unique<QMimeData>();
  data->setImageData(image);
  data->setData(QStringLiteral("image/svg+xml"), svg_bytes(picture));
  return data;
}

}  // namespace kov
