#include "lattice/lk.h"

#include "text/integers.h"

namespace kov {
namespace {

void check_position(const char* function, int icoo, Messages& messages) {
  if (icoo < 0 || icoo >= MaxDimCount) messages.error(std::string(function) + ":icoo=" + int_text(icoo));
}

}  // namespace

int sl_irow(int icoo, Messages& messages) {
  check_position("sl_irow", icoo, messages);
  return icoo == l_position ? 0 : wrapping_add(icoo, 1);
}

int sl_icoo(int irow, Messages& messages) {
  const int icoo = irow == 0 ? l_position : wrapping_subtract(irow, 1);
  check_position("sl_icoo", icoo, messages);
  return icoo;
}

std::string coordinate_name(int icoo) {
  if (icoo == l_position) return "l";
  if (icoo == 0) return "n";
  return std::string("k").append(int_text(icoo));
}

std::string offset_name(int icoo) {
  return icoo == l_position ? coordinate_name(icoo) : std::string("d").append(coordinate_name(icoo));
}

}  // namespace kov
