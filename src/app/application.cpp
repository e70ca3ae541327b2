#include "app/application.h"

#include <QMessageBox>
#include <clocale>
#include <exception>
#include <new>

#include "workbench/start_up.h"

namespace kov {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  // The base class has adopted the locale of the environment, in which numbers may have a comma.
  std::setlocale(LC_NUMERIC, "C");
  setOrganizationName(program_base_name);
  setApplicationName(program_base_name);
  setDesktopFileName(program_base_name);
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
  if (!reporting_) {
    reporting_ = true;
    beep();
    QMessageBox::critical(activeWindow(), program_base_name, what);
    reporting_ = false;
  }
  return true;
}

}  // namespace kov
