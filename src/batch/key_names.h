#pragma once

#include <optional>
#include <string_view>

#include "interact/grid_model.h"

namespace kov {

/// The key that a script names: one character, or "Enter", "Esc", "Tab", "Up", "Down", "PageUp", "PageDown",
/// "Ctrl+PageUp", "Ctrl+PageDown". Nothing for any other name.
std::optional<GridKey> key_named(std::string_view name);

/// "left", "right" or "double".
std::optional<GridClick> click_named(std::string_view name);

}  // namespace kov
