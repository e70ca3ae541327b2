#pragma once

#include "algadd/algadd.h"
#include "lattice/lmap.h"

namespace kov {

/// One point step: adds what table t makes of the source point (key, q) to the row under construction.
/// The entries 0 ... used_length-1 act in their order; a sum that reaches zero erases the point.
/// Coordinates wrap. Throws program_error "AddLpairToLmap_1: add of zero quantity,\nprobably underflow"
/// when q is zero, and floating_overflow when a product or a sum is not finite; the contributions made until
/// then stay in the destination.
void AddLpairToLmap_1(const Algadd& algadd, Lmap& destination, const Lk& key, const cotyp& q, int used_length,
                      int t);

}  // namespace kov
