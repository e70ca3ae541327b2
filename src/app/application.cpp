#include "app/application.h"

#include <QIcon>
#include <QMessageBox>
#include <clocale>
#include <exception>
#include <new>

#include "widgets/scoped_flag.h"
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
  } catch (const std::bad_alloc&) {
    what = tr("Not enough memory.");
  } catch (const std::exception& error) {
    what = QString::fromUtf8(error.what());
  }
  if (reporting_) return true;
  const ScopedFlag reporting(reporting_);
  beep();
  QMessageBox::critical(activeWindow(), program_base_name, what);
  return true;
}

}  // namespace kov
