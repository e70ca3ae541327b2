#include "datafile/qt/comment_text.h"

#include <QByteArray>
#include <QStringConverter>
#include <algorithm>

#include "widgets/qt_text.h"

namespace kov {
namespace {

bool fits_latin1(const QString& text) {
  return std::ranges::all_of(text, [](QChar c) { return c.unicode() <= 0xFF; });
}

}  // namespace

CommentEncoding encoding_of(const std::string& comment) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text = decoder(QByteArray::fromStdString(comment));
  return decoder.hasError() ? CommentEncoding::latin1 : CommentEncoding::utf8;
}

QString editor_text_of(const std::string& comment) {
  const bool is_utf8 = encoding_of(comment) == CommentEncoding::utf8;
  QString text = is_utf8 ? to_qt(comment) : QString::fromLatin1(QByteArray::fromStdString(comment));
  text.replace("\r\n", "\n");
  if (text.endsWith('\n')) text.chop(1);
  return text;
}

std::string comment_of(const QString& editor_text, CommentEncoding encoding) {
  if (editor_text.isEmpty()) return {};
  QString text = editor_text;
  text.replace('\n', "\r\n");
  text += "\r\n";
  if (encoding == CommentEncoding::latin1 && fits_latin1(text)) return text.toLatin1().toStdString();
  return from_qt(text);
}

}  // namespace kov
