#pragma once

#include <QHelpEngine>
#include <QString>
#include <QTemporaryDir>
#include <memory>

namespace kov {

/// The name under which the pages of the help are known, and what their addresses begin with.
inline constexpr const char* help_namespace = "kov.workbench.help";
inline constexpr const char* help_address = "qthelp://kov.workbench.help/doc/";

/// Reads a help file. What the reading needs to write (a database, the index of words) goes to the user's
/// cache folder, and where that cannot be written to a temporary one, so that the help file may be read-only
/// and belong to somebody else.
class HelpCollection {
 public:
  explicit HelpCollection(const QString& help_file);

  QHelpEngine& engine() { return *engine_; }
  /// Why the help cannot be read, for a person; empty when it can.
  const QString& error() const { return error_; }
  /// Whether the help file is another one than the last time, so that its words are to be indexed anew.
  bool renewed() const { return renewed_; }

 private:
  QString folder();
  QString open(const QString& help_file);
  bool enter(const QString& help_file);

  /// Set when the cache folder cannot be written; goes after the engine, which has files there.
  std::unique_ptr<QTemporaryDir> temporary_;
  std::unique_ptr<QHelpEngine> engine_;
  QString error_;
  bool renewed_ = false;
};

}  // namespace kov
