#include "support/literal_step.h"

namespace kov {

void literal_point_step(const Algadd& algadd, LiteralStore& destination, const Lk& key, const cotyp& q, int t,
                        int entry_count) {
  for (int e = 0; e < entry_count; ++e) {
    const AlgaddEntry& entry = algadd.entry(t, e);
    if (is_zero(entry.p)) continue;
    if (entry.offset.coo[31] != key.coo[31]) continue;
    Lk d;
    for (std::size_t k = 0; k <= 30; ++k) d.coo[k] = wrapping_add(key.coo[k], entry.offset.coo[k]);
    d.coo[31] = entry.ldest;

    const auto present = destination.find(d);
    if (present == destination.end()) {
      const cotyp product = entry.p * q;
      if (!is_zero(product)) destination.insert({d, product});
    } else {
      const cotyp sum = present->second + entry.p * q;
      if (is_zero(sum)) {
        destination.erase(present);
      } else {
        present->second = sum;
      }
    }
  }
}

LiteralStore literal_row(const Algadd& algadd, int t, const LiteralStore& store, std::int32_t row,
                         int entry_count) {
  Lk first = Lk::filled(lowest_int);
  first.coo[0] = row;
  LiteralStore destination;
  for (auto point = store.lower_bound(first); point != store.end(); ++point) {
    literal_point_step(algadd, destination, point->first, point->second, t, entry_count);
  }
  return destination;
}

}  // namespace kov
