#include "numbers/ratyp.h"

#include <type_traits>

#include "numbers/checked_integer.h"
#include "numbers/errors.h"

namespace kov {

static_assert(std::is_trivially_copyable_v<ratyp>);

ratyp::ratyp(std::int32_t nu, std::int32_t de) {
  if (de == 0) throw ratyp_error();
  if (nu == 0) return;
  const std::uint32_t g = gcd(nu, de);
  const Fraction reduced{divide_exactly(nu, g), divide_exactly(de, g)};
  // The smallest 32-bit integer cannot change its sign; the value is then the same in floating form.
  if (reduced.de > 0) {
    become(reduced);
  } else if (reduced.nu == INT32_MIN || reduced.de == INT32_MIN) {
    become(static_cast<double>(nu) / static_cast<double>(de));
  } else {
    become(Fraction{-reduced.nu, -reduced.de});
  }
}

ratyp ratyp::floating(double fl) {
  ratyp q;
  q.become(fl);
  return q;
}

inline ratyp& ratyp::become(Fraction fraction) {
  nu_ = fraction.nu;
  de_ = fraction.de;
  return *this;
}

/// The sum with 0.0 turns -0.0 into 0.0 and leaves every other value as it is.
inline ratyp& ratyp::become(double fl) {
  exact_ = false;
  fl_ = fl + 0.0;
  return *this;
}

/// With g the common divisor of the denominators, only g can still divide the numerator of the sum:
/// the numbers stay as small as they can.
inline ratyp::Fraction ratyp::sum_of(Fraction a, Fraction b, bool subtract) {
  const std::uint32_t g = gcd(a.de, b.de);
  a.de = divide_exactly(a.de, g);
  const std::int32_t term = mul_checked(b.nu, a.de);
  a.nu = add_checked(mul_checked(a.nu, divide_exactly(b.de, g)), subtract ? -term : term);
  const std::uint32_t g2 = gcd(a.nu, static_cast<std::int32_t>(g));
  a.nu = divide_exactly(a.nu, g2);
  a.de = mul_checked(a.de, divide_exactly(b.de, g2));
  return a;
}

inline ratyp::Fraction ratyp::product_of(Fraction a, Fraction b) {
  const std::uint32_t g1 = gcd(a.nu, b.de);
  const std::uint32_t g2 = gcd(b.nu, a.de);
  return {mul_checked(divide_exactly(a.nu, g1), divide_exactly(b.nu, g2)),
          mul_checked(divide_exactly(a.de, g2), divide_exactly(b.de, g1))};
}

/// For a numerator of b that is not zero. The sign of b ends in the denominator.
inline ratyp::Fraction ratyp::quotient_of(Fraction a, Fraction b) {
  const std::uint32_t g1 = gcd(a.nu, b.nu);
  const std::uint32_t g2 = gcd(b.de, a.de);
  return {mul_checked(divide_exactly(a.nu, g1), divide_exactly(b.de, g2)),
          mul_checked(divide_exactly(a.de, g2), divide_exactly(b.nu, g1))};
}

ratyp& ratyp::operator+=(const ratyp& b) {
  if (exact_ && b.exact_) {
    ratyp_overflow = false;
    const Fraction sum = sum_of(fraction(), b.fraction(), false);
    if (!ratyp_overflow) return become(sum);
  }
  return become(to_double(*this) + to_double(b));
}

ratyp& ratyp::operator-=(const ratyp& b) {
  if (exact_ && b.exact_) {
    ratyp_overflow = false;
    const Fraction difference = sum_of(fraction(), b.fraction(), true);
    if (!ratyp_overflow) return become(difference);
  }
  return become(to_double(*this) - to_double(b));
}

ratyp& ratyp::operator*=(const ratyp& b) {
  if (exact_ && b.exact_) {
    ratyp_overflow = false;
    const Fraction product = product_of(fraction(), b.fraction());
    if (!ratyp_overflow) return become(product);
  }
  return become(to_double(*this) * to_double(b));
}

ratyp& ratyp::operator/=(const ratyp& b) {
  if (exact_ && b.exact_) {
    if (b.nu_ == 0) throw ratyp_error();
    if (nu_ == 0) return *this;
    ratyp_overflow = false;
    const Fraction quotient = quotient_of(fraction(), b.fraction());
    if (!ratyp_overflow) {
      return become(quotient.de < 0 ? Fraction{-quotient.nu, -quotient.de} : quotient);
    }
  }
  return become(to_double(*this) / to_double(b));
}

ratyp& ratyp::operator++() {
  if (exact_) {
    ratyp_overflow = false;
    const std::int32_t nu = add_checked(nu_, de_);
    if (!ratyp_overflow) return become(Fraction{nu, de_});
  }
  return become(to_double(*this) + 1.0);
}

ratyp ratyp::operator++(int) {
  const ratyp old = *this;
  ++*this;
  return old;
}

bool operator<(const ratyp& a, const ratyp& b) {
  if (a.exact_ && b.exact_) {
    if (a.nu_ < 0 && b.nu_ >= 0) return true;
    if (a.nu_ >= 0 && b.nu_ <= 0) return false;
    ratyp_overflow = false;
    // Two values of one sign compare like the parts of their quotient.
    const ratyp::Fraction quotient = ratyp::quotient_of(a.fraction(), b.fraction());
    if (!ratyp_overflow) return quotient.nu < quotient.de;
  }
  return to_double(a) < to_double(b);
}

bool operator<(const ratyp& a, std::int32_t k) {
  // The quotient nu/de has the sign of nu and is 0 only with it, so it serves at and around zero too.
  return to_double(a) < static_cast<double>(k);
}

}  // namespace kov
