#pragma once

#include "pictures/qt/file_picture_writer.h"

namespace kov {

/// The one writer of the test program, and with it the application object that fonts need.
FilePictureWriter& test_writer();

}  // namespace kov
