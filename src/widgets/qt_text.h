#pragma once

#include <QString>
#include <string>

namespace kov {

/// The core's texts are UTF-8; these two are the only way between them and Qt's.
inline QString to_qt(const std::string& text) { return QString::fromStdString(text); }
inline std::string from_qt(const QString& text) { return text.toStdString(); }

}  // namespace kov
