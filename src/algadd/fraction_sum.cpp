#include "algadd/fraction_sum.h"

namespace kov {

FractionSum fraction_sum(const cotyp& q) {
  FractionSum sum{q.re.fl(), FractionSum::floating_form};
  if (q.re.exact()) sum = {static_cast<double>(q.re.nu()), static_cast<double>(q.re.de())};
  if (!q.im.exact()) sum.form = -sum.form;
  return sum;
}

}  // namespace kov
