#include "pictures/qt/utf8_text.h"

#include <algorithm>

namespace kov {
namespace {

bool is_forbidden(QChar c) {
  const char16_t code = c.unicode();
  return (code < u' ' && code != u'\n' && code != u'\t') || code == u'\uFFFE' || code == u'\uFFFF';
}

}  // namespace

QString from_utf8(std::string_view text) {
  QString result = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  std::replace_if(result.begin(), result.end(), is_forbidden, QChar(QChar::ReplacementCharacter));
  return result;
}

}  // namespace kov
