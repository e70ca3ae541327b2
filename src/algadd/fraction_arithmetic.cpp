#include "algadd/fraction_arithmetic.h"

#include <algorithm>
#include <array>

#include "algadd/finished_columns.h"
#include "numbers/checked_integer.h"

namespace kov {

namespace {

bool in_exact_range(std::int64_t x) { return x >= nu_min_int && x <= nu_max_int; }

// Most often one of them is 1.
std::uint32_t divisor_of(std::int64_t a, std::int64_t b) {
  if (a == 1 || b == 1) return 1;
  return gcd(static_cast<std::int32_t>(a), static_cast<std::int32_t>(b));
}

// The fraction, or nothing where ratyp would go over to floating: out is then as it was.
bool multiply_exactly(const FractionSum& a, const FractionSum& b, FractionSum& out) {
  std::int64_t a_nu = a.number;
  std::int64_t b_nu = b.number;
  std::int64_t a_de = a.denominator;
  std::int64_t b_de = b.denominator;
  if (b_de != 1) {
    const std::int64_t g = divisor_of(a_nu, b_de);
    if (g != 1) {
      a_nu /= g;
      b_de /= g;
    }
  }
  if (a_de != 1) {
    const std::int64_t g = divisor_of(b_nu, a_de);
    if (g != 1) {
      b_nu /= g;
      a_de /= g;
    }
  }
  const std::int64_t nu = a_nu * b_nu;
  const std::int64_t de = a_de * b_de;
  if (!in_exact_range(nu) || !in_exact_range(de)) return false;
  out.number = nu;
  out.denominator = static_cast<std::int32_t>(de);
  return true;
}

// A sum of numbers of opposite signs, or with 0, is not tested against the range: it is within 32 bits.
bool sum_in_exact_range(std::int64_t a, std::int64_t b) {
  if (a > 0 && b > 0) return a + b <= nu_max_int;
  if (a <= 0 && b < 0) return a + b >= nu_min_int;
  return true;
}

bool add_exactly(FractionSum& a, const FractionSum& b) {
  const std::int64_t g =
      a.denominator == b.denominator ? a.denominator : divisor_of(a.denominator, b.denominator);
  const std::int64_t a_part = a.denominator / g;
  const std::int64_t b_part = b.denominator / g;
  const std::int64_t b_term = b.number * a_part;
  const std::int64_t a_term = a.number * b_part;
  if (!in_exact_range(a_term) || !in_exact_range(b_term) || !sum_in_exact_range(a_term, b_term)) return false;
  const std::int64_t nu = a_term + b_term;
  const std::int64_t g2 = g == 1 ? 1 : divisor_of(nu, g);
  const std::int64_t de = a_part * (b.denominator / g2);
  if (!in_exact_range(de)) return false;
  a.number = g2 == 1 ? nu : nu / g2;
  a.denominator = static_cast<std::int32_t>(de);
  return true;
}

void become_floating(FractionSum& sum, double value) {
  sum.number = std::bit_cast<std::int64_t>(value + 0.0);
  sum.denominator = 0;
}

}  // namespace

FractionSum FractionArithmetic::made(const ratyp& re, PartStates states) {
  FractionSum sum;
  sum.states = states;
  if (re.exact()) {
    sum.number = re.nu();
    sum.denominator = re.de();
  } else {
    become_floating(sum, re.fl());
  }
  return sum;
}

FractionArithmetic::Prepared FractionArithmetic::prepare(const Block& block) {
  Prepared prepared(block.size());
  for (std::size_t i = 0; i < prepared.size(); ++i) {
    const cotyp q = block.quantity(i);
    prepared[i] = made(q.re, states_of(q));
  }
  return prepared;
}

// Both parts of a product are floating as soon as one of the four parts that it is made of is. The real part
// is then still the exact product of two exact real parts, taken as a double.
FractionSum FractionArithmetic::product(const Factor& p, Values q, std::size_t i) {
  FractionSum product;
  const bool exact_parts = p.exact() && q[i].exact();
  if (!exact_parts || !multiply_exactly(p, q[i], product)) become_floating(product, p.value() * q[i].value());
  if ((p.states & q[i].states) == both_exact) {
    product.states = product.exact() ? both_exact : PartStates{2};
  } else {
    if (product.exact()) become_floating(product, product.value());
    product.states = 0;
  }
  return product;
}

void FractionArithmetic::add(Sum& sum, const Sum& product) {
  if (is_absent(sum)) {
    sum = product;
    return;
  }
  if (!sum.exact() || !product.exact() || !add_exactly(sum, product)) {
    become_floating(sum, sum.value() + product.value());
  }
  const unsigned re = sum.exact() ? 1U : 0U;
  sum.states = static_cast<PartStates>((sum.states & product.states & 2U) | re);
}

std::pair<Column, Column> FractionArithmetic::columns(std::span<const Sum> sums) {
  std::array<ratyp, block_capacity> parts;
  const std::span<const ratyp> used(parts.data(), sums.size());
  std::transform(sums.begin(), sums.end(), parts.begin(), [](const Sum& sum) {
    if (!sum.exact()) return ratyp::floating(sum.floating());
    return ratyp::reduced(static_cast<std::int32_t>(sum.number), sum.denominator);
  });
  Column re = finished_column(used);
  std::transform(sums.begin(), sums.end(), parts.begin(),
                 [](const Sum& sum) { return (sum.states & 2U) != 0 ? ratyp() : ratyp::floating(0.0); });
  return {std::move(re), finished_column(used)};
}

}  // namespace kov
