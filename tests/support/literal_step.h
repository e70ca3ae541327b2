#pragma once

#include <cstdint>
#include <map>

#include "algadd/algadd.h"
#include "lattice/lk.h"
#include "numbers/cotyp.h"
#include "text/integers.h"

namespace kov {

/// A plain store in key order: the oracle's, and the baseline of the benchmarks.
using LiteralStore = std::map<Lk, cotyp, LkOrder>;

/// The step of one source point, read word for word: every entry of the table is looked at, every
/// destination is searched for, and then inserted, replaced or erased. No test for overflow: what is not
/// finite stays so in the destination until the row is done, since neither an infinity nor a NaN becomes
/// finite again by adding. entry_count may bound the walk over the table to its used length, as a benchmark
/// does that is not about empty entries.
void literal_point_step(const Algadd& algadd, LiteralStore& destination, const Lk& key, const cotyp& q, int t,
                        int entry_count = Algadd_EntryCount);

/// The row that table t makes of all points from the first one with n = row to the end of the store.
LiteralStore literal_row(const Algadd& algadd, int t, const LiteralStore& store, std::int32_t row,
                         int entry_count = Algadd_EntryCount);

}  // namespace kov
