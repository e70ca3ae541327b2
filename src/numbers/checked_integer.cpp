#include "numbers/checked_integer.h"

#include "numbers/errors.h"

namespace kov {

void require_negative_minimum(std::int32_t minimum) {
  if (minimum >= 0) throw program_error("nu_min_int<0 necessary");
}

}  // namespace kov
