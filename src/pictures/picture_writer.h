#pragma once

#include <filesystem>
#include <stdexcept>

#include "pictures/picture.h"
#include "pictures/text_measure.h"

namespace kov {

/// A picture that cannot be written; the text names the file and the reason.
class picture_error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The port through which a program without a window writes pictures: what draws needs a library that the
/// core does without.
class PictureWriter {
 public:
  virtual ~PictureWriter() = default;

  /// Measures texts as they will stand in the file.
  virtual const TextMeasure& measure() = 0;
  /// Writes the picture in the format that the file's name asks for, ".png" or ".svg": the whole picture, or
  /// nothing and a picture_error.
  virtual void write(const Picture& picture, const std::filesystem::path& file) = 0;
};

}  // namespace kov
