#pragma once

#include <optional>
#include <string>

#include "interact/questions.h"
#include "numbers/cotyp.h"

namespace kov {

/// Asks for a quantity c in its text form: prompt + "\nenter complex number c", the preset 1. Asks again
/// until the text is a quantity; nothing when cancelled.
std::optional<cotyp> ask_quantity(Questions& questions, const std::string& caption,
                                  const std::string& prompt);

}  // namespace kov
