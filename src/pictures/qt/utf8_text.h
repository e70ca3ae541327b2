#pragma once

#include <QString>
#include <string_view>

namespace kov {

/// Texts of pictures are UTF-8; what is not stands as replacement characters.
inline QString from_utf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace kov
