#pragma once

#include <optional>

#include "interact/grid_model.h"

class QKeyEvent;

namespace kov {

/// A key press as a grid model knows keys; nothing for keys that are none of its business: function keys,
/// what is pressed with Alt or Ctrl (but Ctrl+Page Up and Ctrl+Page Down), cursor keys with Shift. A
/// character outside ASCII comes as the first byte of its UTF-8 form, which no key of a model is.
std::optional<GridKey> grid_key(const QKeyEvent& event);

}  // namespace kov
