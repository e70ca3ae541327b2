#include "datafile/qt/comment_text.h"

#include "widgets/qt_text.h"

namespace kov {

QString editor_text_of(const std::string& comment) {
  QString text = to_qt(comment);
  text.replace("\r\n", "\n");
  if (text.endsWith('\n')) text.chop(1);
  return text;
}

std::string comment_of(const QString& editor_text) {
  if (editor_text.isEmpty()) return {};
  QString text = editor_text;
  text.replace('\n', "\r\n");
  return from_qt(text) + "\r\n";
}

}  // namespace kov
