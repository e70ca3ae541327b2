#include "algadd/kernel.h"

#include "algadd/overflow_check.h"

namespace kov {

void AddLpairToLmap_1(const Algadd& algadd, Lmap& destination, const Lk& key, const cotyp& q, int used_length,
                      int t) {
  if (is_zero(q)) throw program_error("AddLpairToLmap_1: add of zero quantity,\nprobably underflow");
  for (int e = 0; e < used_length; ++e) {
    const AlgaddEntry& entry = algadd.entry(t, e);
    if (entry.source_l() != key.l() || entry.empty()) continue;
    const cotyp product = entry.p * q;
    require_no_overflow(product);
    Lk target = wrapping_add(key, entry.offset);
    target.coo[l_position] = entry.ldest;
    require_no_overflow(destination.add(target, product));
  }
}

}  // namespace kov
