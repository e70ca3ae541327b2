#pragma once

#include <string>

#include "lattice/key_box.h"

namespace kov {

/// A range in one line, for the title of a graph: "l=0 n=0 k1=-...+ k2=1...5". Names l, n and every other
/// coordinate whose bounds are not both 0; neighbours with the same bounds in one: "k3...k30=0...2".
std::string range_title(const KeyBox& range);

}  // namespace kov
