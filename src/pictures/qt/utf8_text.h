#pragma once

#include <QString>
#include <string_view>

namespace kov {

/// Texts of pictures are UTF-8. What is not, and what no XML file may contain, stands as a replacement
/// character.
QString from_utf8(std::string_view text);

}  // namespace kov
