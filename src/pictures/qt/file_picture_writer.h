#pragma once

#include <memory>

#include "pictures/picture_writer.h"
#include "pictures/qt/picture_font.h"

namespace kov {

/// Writes pictures for a program that has no window and needs no display. The application object that fonts
/// need is made at the first use, unless the process has one already, so a run without pictures starts
/// none of it. Numbers are written by the locale "C" before and after.
class FilePictureWriter final : public PictureWriter {
 public:
  FilePictureWriter();
  ~FilePictureWriter() override;

  const TextMeasure& measure() override;
  void write(const Picture& picture, const std::filesystem::path& file) override;

 private:
  class Application;

  void need_application();

  std::unique_ptr<Application> application_;
  FontMeasure measure_;
};

}  // namespace kov
