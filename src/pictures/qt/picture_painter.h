#pragma once

#include <QImage>

#include "pictures/picture.h"

class QPainter;

namespace kov {

/// Paints a picture with its upper left corner at the painter's origin, one pixel of it being one unit of
/// the painter; nothing outside the picture's edges is touched. Pixels of rasters stay squares at
/// every scale, boxes have no seams between them, and horizontal and vertical lines lie on whole
/// pixels of the device. Leaves the painter as it was.
void paint_picture(QPainter& painter, const Picture& picture);

/// The picture as an image in the memory of this process, with so many pixels of the image for one of the
/// picture; where the picture ends within a pixel, that one is whole. Null when the picture has no pixels or
/// there is no memory for it.
QImage picture_image(const Picture& picture, double device_pixel_ratio = 1);

}  // namespace kov
