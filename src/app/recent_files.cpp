#include "app/recent_files.h"

#include <QFile>
#include <QSettings>
#include <QStringList>
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

void RecentFiles::add(const std::filesystem::path& path) {
  const QString text = QFile::decodeName(std::filesystem::absolute(path).lexically_normal().c_str());
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
