#pragma once

#include <QString>
#include <string>

namespace kov {

// A comment's lines end with CR LF, each of them; an editor's are separated by LF.

QString editor_text_of(const std::string& comment);
std::string comment_of(const QString& editor_text);

}  // namespace kov
