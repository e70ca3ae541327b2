#pragma once

#include <string>

namespace kov {

/// What to tell a person of the exception that is being handled; to be called within a catch block. Of an
/// exception that has no text, only that there was one.
std::string text_of_handled_error();

}  // namespace kov
