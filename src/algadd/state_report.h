#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "algadd/algadd.h"
#include "lattice/lmap.h"

namespace kov {

/// The State command's report up to the offer to probe the memory: what the lattices hold, and the
/// timing part.
std::string state_report(const Lmap& lmap, const Algadd& algadd);

/// The timing part: empty when the last run took less than a second. A run that failed in its first step
/// has no average.
std::string timing_text(const Algadd::LastRun& run);

/// Stands behind the report: the offer to probe the memory.
extern const char* const memory_probe_offer;

/// How many megabytes (of 1000 000 bytes) can still be allocated in one piece, found by trial and released
/// at once; no page is touched. At most 1 000 000.
std::size_t allocatable_megabytes();

/// The answer to the offer: "3210 MB are allocatable\nusing RAM and virtual memory on HD".
std::string allocatable_text(std::size_t megabytes);

/// The largest number up to cap that can be allocated, by doubling and bisection; can_allocate must not
/// come back to true above a number for which it is false. 0 when nothing can. O(log cap) trials.
std::size_t largest_allocatable(std::size_t cap, const std::function<bool(std::size_t)>& can_allocate);

}  // namespace kov
