#include <QFile>
#include <filesystem>
#include <vector>

#include "app/application.h"
#include "app/kovu1.h"
#include "app/kovus1.h"

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
  kov::Application application(argc, argv);
  kov::TF1 F1(start_parameters());
  kov::TUF1 UF1(F1);
  F1.show();
  return kov::Application::exec();
}
