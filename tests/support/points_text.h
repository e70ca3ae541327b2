#pragma once

#include <string>

#include "lattice/lmap.h"

namespace kov {

/// The point as "l n k1 ...: quantity" without the trailing zero coordinates behind n; each floating part
/// is followed by "~", so that 2 and 2.0 differ. For comparing stores: a difference can be read.
std::string point_text(const Lk& key, const cotyp& q);

/// All points in key order, one a line.
std::string points_text(const Lmap& lmap);

}  // namespace kov
