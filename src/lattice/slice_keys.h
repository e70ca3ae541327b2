#pragma once

#include <string_view>

#include "interact/grid_model.h"

namespace kov {

// What Slq and Sldim, the two grids of a slice, have in common in their keys.

/// A letter in upper case, as keys are looked up, and any other character as it is; '\0' for a key that has
/// a name.
char character_looked_up(const GridKey& key);

/// Whether the cell's editor or the grid takes the key, rather than the model: one of the typed characters,
/// Tab, Backspace, or a move of the selection.
bool is_left_to_editor(const GridKey& key, std::string_view typed_characters);

/// 1 for the key P, -1 for M, else 0.
int step_of(const GridKey& key);

}  // namespace kov
