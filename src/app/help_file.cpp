#include "app/help_file.h"

#include <QCoreApplication>
#include <QFile>
#include <string>
#include <system_error>

#include "workbench/start_up.h"

namespace kov {

std::filesystem::path help_file() {
  const std::filesystem::path folder =
      QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString();
  const std::string name = std::string(program_base_name) + ".hlp";
  std::error_code ignored;
  if (std::filesystem::exists(folder / name, ignored)) return folder / name;
  return (folder / ".." / "share" / program_base_name / name).lexically_normal();
}

}  // namespace kov
