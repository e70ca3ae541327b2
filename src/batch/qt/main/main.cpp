#include "batch/program.h"
#include "pictures/qt/file_picture_writer.h"

int main(int argc, char** argv) {
  kov::FilePictureWriter pictures;
  const std::span<const char* const> arguments(argv, static_cast<std::size_t>(argc));
  return static_cast<int>(kov::run_program(arguments.subspan(argc > 0 ? 1 : 0), &pictures));
}
