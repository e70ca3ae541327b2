#include "sums/number_display.h"

#include "numbers/floating_text.h"

namespace kov {

NumberDisplay NumberDisplay::read(const cphclass& cph) {
  return {.as_float = cph.kmi("Sums_ShowAsFloat") != 0, .digits = cph.kmi("Sums_lt_precision")};
}

std::string NumberDisplay::text(const cotyp& q) const {
  if (!as_float) return to_text(q);
  const double re = to_double(q.re);
  const double im = to_double(q.im);
  if (im == 0.0) return floating_text(re, digits);
  std::string imaginary = floating_text(im, digits) + "i";
  if (re == 0.0) return imaginary;
  return floating_text(re, digits) + (im < 0.0 ? "" : "+") + imaginary;
}

}  // namespace kov
