#pragma once

#include <string_view>

#include "interact/grid_model.h"

namespace kov {

// How the grids look at keys: letters count in upper case, and each grid names the characters that its
// editor takes.

/// The character of a key, a letter in upper case; '\0' for a key that has a name.
char upper_character(const GridKey& key);

/// Whether a key is the editor's or moves the selection: one of the admitted characters (letters in upper
/// case), or any key with a name other than Enter and Esc, which every grid takes itself.
bool passes_to_editor(const GridKey& key, std::string_view admitted);

/// What a key adds to the selected cell where P and M step it: 1 for P, -1 for M, else 0.
int step_of(const GridKey& key);

}  // namespace kov
