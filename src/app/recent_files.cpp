#include "app/recent_files.h"

#include <QFile>
#include <QSettings>
#include <QStringList>
#include <string>
#include <system_error>
#include <utility>

namespace kov {
namespace {

constexpr const char* key = "recent_files";

QString shown(int number, const QString& path) {
  return QString("&%1  %2").arg(number).arg(QString(path).replace("&", "&&"));
}

}  // namespace

RecentFiles::RecentFiles(Open open, QWidget* parent)
    : QMenu(tr("Open recent"), parent), open_(std::move(open)) {
  setObjectName("Recent");
  fill();
  connect(this, &QMenu::aboutToShow, this, &RecentFiles::fill);
}

/// A file that could not be found again is left out: one with a relative name in a folder that is gone, or
/// with bytes in its name that are no text.
void RecentFiles::add(const std::filesystem::path& path) {
  std::error_code no_folder;
  const std::string name = std::filesystem::absolute(path, no_folder).lexically_normal().string();
  const QString text = QFile::decodeName(name.c_str());
  if (no_folder || QFile::encodeName(text).toStdString() != name) return;
  QSettings settings;
  QStringList paths = settings.value(key).toStringList();
  if (!paths.isEmpty() && paths.front() == text) return;
  paths.removeAll(text);
  paths.prepend(text);
  settings.setValue(key, paths.mid(0, longest));
  menuAction()->setEnabled(true);
}

void RecentFiles::fill() {
  clear();
  const QStringList paths = QSettings().value(key).toStringList();
  for (int i = 0; i < paths.size(); ++i) {
    const QString& path = paths[i];
    connect(addAction(shown(i + 1, path)), &QAction::triggered, this,
            [this, path] { open_(QFile::encodeName(path).toStdString()); });
  }
  menuAction()->setEnabled(!paths.isEmpty());
}

}  // namespace kov
