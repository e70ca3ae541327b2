#include "app/help_file.h"

#include <QCoreApplication>
#include <QFile>
#include <string>
#include <system_error>

#include "workbench/start_up.h"

namespace kov {

std::filesystem::path help_file() {
  return help_file_of(QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString());
}

std::filesystem::path help_file_of(const std::filesystem::path& program_folder) {
  const std::string name = std::string(program_base_name) + ".hlp";
  std::error_code ignored;
  if (std::filesystem::exists(program_folder / name, ignored)) return program_folder / name;
  return (program_folder / ".." / "share" / program_base_name / name).lexically_normal();
}

}  // namespace kov
