#include "numbers/cotyp.h"

#include <cmath>
#include <type_traits>

#include "numbers/errors.h"

namespace kov {

static_assert(std::is_trivially_copyable_v<cotyp>);
static_assert(sizeof(cotyp) == 2 * sizeof(ratyp));

cotyp::cotyp(std::int32_t re_nu, std::int32_t re_de, std::int32_t im_nu, std::int32_t im_de)
    : re(re_nu, re_de), im(im_nu, im_de) {}

cotyp cotyp::floating(double real, double imaginary) {
  return {ratyp::floating(real), ratyp::floating(imaginary)};
}

cotyp& cotyp::operator+=(const cotyp& b) {
  re += b.re;
  im += b.im;
  return *this;
}

cotyp& cotyp::operator-=(const cotyp& b) {
  re -= b.re;
  im -= b.im;
  return *this;
}

// Product and quotient keep their steps in this order: where one of them overflows, another order
// would give other bits. Both write the parts last, since b may be the left operand itself.

cotyp& cotyp::operator*=(const cotyp& b) {
  const ratyp t1 = im * b.im;
  const ratyp t2 = re * b.re;
  const ratyp new_im = im * b.re + re * b.im;
  re = t2 - t1;
  im = new_im;
  return *this;
}

cotyp& cotyp::operator/=(const cotyp& b) {
  const ratyp d = qq(b);
  // Without this, a floating left operand would end as NaN instead.
  if (d.exact() && d.nu() == 0) throw ratyp_error();
  const ratyp new_re = (re * b.re + im * b.im) / d;
  const ratyp new_im = (im * b.re - re * b.im) / d;
  re = new_re;
  im = new_im;
  return *this;
}

ratyp qq(const cotyp& q) { return q.re * q.re + q.im * q.im; }

cotyp to_float(const cotyp& q) { return cotyp::floating(to_double(q.re), to_double(q.im)); }

void require_finite(const cotyp& q) {
  if (is_finite(q)) return;
  if (std::isinf(to_double(q.re)) || std::isinf(to_double(q.im))) throw floating_overflow();
  throw math_error("invalid floating point operation");
}

}  // namespace kov
