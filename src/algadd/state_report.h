#pragma once

#include <string>

#include "algadd/algadd.h"
#include "lattice/lmap.h"

namespace kov {

/// The State command's report up to the offer to probe the memory.
std::string state_report(const Lmap& lmap, const Algadd& algadd);

/// The timing part: empty when the last run took less than a second.
std::string timing_text(const Algadd::LastRun& run);

/// How many megabytes (of 1000 000 bytes) can still be allocated, found by trial and released at once.
std::size_t allocatable_megabytes();

}  // namespace kov
