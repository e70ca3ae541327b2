#pragma once

#include "numbers/cotyp.h"
#include "numbers/errors.h"

namespace kov {

/// Gives q, a sum or product of finite quantities that is about to be stored, or throws floating_overflow
/// when it is not finite. A NaN counts as overflow, too: out of finite operands it arises only as the
/// difference of two products that overflowed before.
inline const cotyp& require_no_overflow(const cotyp& q) {
  if (!is_finite(q)) throw floating_overflow();
  return q;
}

}  // namespace kov
