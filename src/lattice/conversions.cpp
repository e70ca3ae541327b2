#include "lattice/conversions.h"

#include "numbers/cotyp.h"
#include "numbers/errors.h"

namespace kov {
namespace {

cotyp inverse(const cotyp& q) {
  const cotyp result = cotyp(1) / q;
  require_finite(result);
  if (is_zero(result)) throw floating_overflow();
  return result;
}

}  // namespace

void all_to_float(Lmap& lmap) { lmap.transform(to_float); }

std::size_t invert_all(Lmap& lmap) {
  lmap.transform(inverse);
  return lmap.count();
}

}  // namespace kov
