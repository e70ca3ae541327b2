#pragma once

#include "config/cphclass.h"
#include "interact/user.h"
#include "lattice/lmap.h"

namespace kov {

/// The worked example of the help's page on algorithms of one's own.
void cut_and_normalise(Lmap& lmap, const cphclass& cph, User user);

}  // namespace kov
