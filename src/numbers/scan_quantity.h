#pragma once

#include "numbers/cotyp.h"
#include "text/word_scanner.h"

namespace kov {

/// Reads a quantity that is written as the program writes them and ends with the text, as from_text does.
/// False, which says nothing about the text, when it is another or needs care.
bool scan_quantity(WordScanner& text, cotyp& q);

}  // namespace kov
