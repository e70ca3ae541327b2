#pragma once

#include <string>

#include "config/cphclass.h"
#include "interact/user.h"

namespace kov {

/// The caption of the button: "set ny:" and the current ny.
std::string Button_g2a_ny_caption(const cphclass& cph);

/// What the button asks: for a new ny, within the bounds of its parameter. True when Graph2a_ny was changed:
/// the states of the curves are then to be reset and Graph2 to be drawn again.
bool Button_g2a_nyClick(cphclass& cph, User user);

}  // namespace kov
