#include "app/application.h"

#include <QIcon>
#include <QMessageBox>
#include <clocale>

#include "interact/error_text.h"
#include "interact/scoped_flag.h"
#include "widgets/qt_text.h"
#include "workbench/start_up.h"

namespace kov {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  // The base class has adopted the locale of the environment, in which numbers may have a comma.
  std::setlocale(LC_NUMERIC, "C");
  setOrganizationName(program_base_name);
  setApplicationName(program_base_name);
  setDesktopFileName(program_base_name);
  setWindowIcon(QIcon(":/kov.svg"));
}

bool Application::notify(QObject* receiver, QEvent* event) {
  QString what;
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    what = to_qt(text_of_handled_error());
  }
  if (reporting_) return true;
  const ScopedFlag reporting(reporting_);
  beep();
  QMessageBox::critical(activeWindow(), program_base_name, what);
  return true;
}

}  // namespace kov
