#include "pictures/qt/file_picture_writer.h"

#include <QGuiApplication>
#include <array>
#include <clocale>
#include <string>

#include "pictures/qt/picture_files.h"

namespace kov {

namespace {

void drop_message(QtMsgType, const QMessageLogContext&, const QString&) {}

/// As long as it lives, remarks of the library on the environment (a session's folder that is not set, say)
/// stay away from standard error, which belongs to reports. What is fatal still ends the process.
class QuietLibrary {
 public:
  QuietLibrary() : before_(qInstallMessageHandler(drop_message)) {}
  ~QuietLibrary() { qInstallMessageHandler(before_); }
  QuietLibrary(const QuietLibrary&) = delete;
  QuietLibrary& operator=(const QuietLibrary&) = delete;

 private:
  QtMessageHandler before_;
};

}  // namespace

/// An application object on no screen, with the arguments that it keeps looking into.
class FilePictureWriter::Application {
 public:
  Application() : application_(count_, arguments_.data()) {
    // It has adopted the locale of the environment, in which numbers may have a comma.
    std::setlocale(LC_NUMERIC, "C");
  }

 private:
  std::string program_ = "kovbatch", option_ = "-platform", platform_ = "offscreen";
  std::array<char*, 4> arguments_{program_.data(), option_.data(), platform_.data(), nullptr};
  int count_ = 3;
  QuietLibrary quiet_;
  QGuiApplication application_;
};

FilePictureWriter::FilePictureWriter() = default;
FilePictureWriter::~FilePictureWriter() = default;

void FilePictureWriter::need_application() {
  if (QCoreApplication::instance() == nullptr) application_ = std::make_unique<Application>();
}

const TextMeasure& FilePictureWriter::measure() {
  need_application();
  return measure_;
}

void FilePictureWriter::write(const Picture& picture, const std::filesystem::path& file) {
  need_application();
  save_picture(picture, file);
}

}  // namespace kov
