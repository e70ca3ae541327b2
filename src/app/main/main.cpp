#include <QFile>
#include <cstddef>
#include <filesystem>
#include <iostream>
#include <span>
#include <vector>

#include "app/application.h"
#include "app/kovu1.h"
#include "app/kovus1.h"
#include "app/start_options.h"

namespace {

/// What is left of the command line when the toolkit has taken its own options.
std::vector<std::filesystem::path> start_parameters() {
  std::vector<std::filesystem::path> parameters;
  for (const QString& argument : QCoreApplication::arguments().mid(1)) {
    parameters.emplace_back(QFile::encodeName(argument).toStdString());
  }
  return parameters;
}

}  // namespace

int main(int argc, char** argv) {
  const std::span<const char* const> all(argv, static_cast<std::size_t>(argc));
  if (const auto answer = kov::answer_without_window(all.empty() ? all : all.subspan(1))) {
    std::cout << *answer << std::flush;
    return std::cout ? 0 : 1;
  }
  kov::Application application(argc, argv);
  kov::TF1 F1(start_parameters());
  kov::TUF1 UF1(F1);
  F1.show();
  return kov::Application::exec();
}
