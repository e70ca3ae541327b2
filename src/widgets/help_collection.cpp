#include "widgets/help_collection.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace kov {
namespace {

constexpr const char* identity_key = "kov/help_file";

/// Changes when the help file does, or when another one is read.
QString identity_of(const QString& help_file) {
  const QFileInfo info(help_file);
  return info.absoluteFilePath() + "|" + QString::number(info.size()) + "|" +
         QString::number(info.lastModified().toMSecsSinceEpoch());
}

bool is_known(const QHelpEngineCore& engine) {
  return engine.registeredDocumentations().contains(help_namespace);
}

}  // namespace

HelpCollection::HelpCollection(const QString& help_file)
    : engine_(std::make_unique<QHelpEngine>(QDir(folder()).filePath("help.qhc"))) {
  // A read-only engine, the default, takes no help file in.
  engine_->setReadOnly(false);
  error_ = open(help_file);
}

QString HelpCollection::folder() {
  QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
  if (!cache.isEmpty() && QDir().mkpath(cache) && QFileInfo(cache).isWritable()) return cache;
  temporary_ = std::make_unique<QTemporaryDir>();
  return temporary_->path();
}

QString HelpCollection::open(const QString& help_file) {
  const QString what = "The help cannot be shown.\n\n";
  if (!QFileInfo::exists(help_file)) return what + "There is no file " + help_file + ".";
  if (!engine_->setupData()) {
    return what + engine_->error() +
           "\n\nHelp files are read through Qt's driver for SQLite databases, which is a package of its own: "
           "libqt6sql6-sqlite.";
  }
  if (!enter(help_file)) return what + help_file + "\n\n" + engine_->error();
  return {};
}

bool HelpCollection::enter(const QString& help_file) {
  const QString identity = identity_of(help_file);
  if (is_known(*engine_) && engine_->customValue(identity_key).toString() == identity) return true;
  engine_->unregisterDocumentation(help_namespace);
  // A refusal because another window has just entered it is no error.
  if (!engine_->registerDocumentation(help_file) && !is_known(*engine_)) return false;
  engine_->setCustomValue(identity_key, identity);
  renewed_ = true;
  return true;
}

}  // namespace kov
