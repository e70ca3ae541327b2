#include "algadd/absorbing_barrier.h"

#include "algadd/overflow_check.h"
#include "text/integers.h"

namespace kov {

namespace {

cotyp take(Lmap& lmap, const Lk& key) {
  const cotyp q = lmap.get(key);
  lmap.erase(key);
  return q;
}

}  // namespace

AbsorbingBarrier AbsorbingBarrier::read(const cphclass& cph) {
  return {.ldest1 = cph.kmi("Obarr0_ldest1"),
          .ldest2 = cph.kmi("Obarr1_ldest2"),
          .k1 = cph.kmi("Obarr1_k1"),
          .k1add = cph.kmi("Obarr1_k1_of_add_ldest2"),
          .multp = cotyp(cph.kmi("Obarr1_multp_ldest2"), 100, 0, 1)};
}

std::string AbsorbingBarrier::text() const {
  if (ldest1 == 0) return {};
  return "The origin, i.e. (0,0...,0), of lattice 0\nis defined as absorbing barrier and will\n"
         "be set to 0 after every iteration.\nThe absorbed quantity will be moved\nto (0,0...,0) of "
         "lattice " +
         int_text(ldest1) + " in which (" + int_text(k1) +
         ",0...,0)\nis absorbing and the there absorbed\nquantities will be added to (" + int_text(k1add) +
         ",0,0...,0)\nof lattice " + int_text(ldest2) + " after multiplication by " + to_text(multp) + " .\n";
}

void AbsorbingBarrier::apply(Lmap& destination, std::int32_t n) const {
  if (ldest1 == 0) return;
  const cotyp q0 = take(destination, Lk::at(0, n));
  // Before q0 arrives: with k1 = 0 the origin of ldest1 gives only what was there already.
  const cotyp q1 = require_no_overflow(take(destination, Lk::at(ldest1, n, k1)) * multp);
  // A q0 of zero is added, too: even that can change the representation of the number that it meets.
  require_no_overflow(destination.add(Lk::at(ldest1, n), q0));
  if (!is_zero(q1)) require_no_overflow(destination.add(Lk::at(ldest2, n, k1add), q1));
}

}  // namespace kov
