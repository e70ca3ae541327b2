#include "algadd/fraction_arithmetic.h"

#include <algorithm>
#include <array>

#include "algadd/finished_columns.h"
#include "numbers/checked_integer.h"

namespace kov {

namespace {

// Most often one of them is 1.
std::uint32_t divisor_of(std::int64_t a, std::int64_t b) {
  if (a == 1 || b == 1) return 1;
  return gcd(static_cast<std::int32_t>(a), static_cast<std::int32_t>(b));
}

FractionSum floating_sum(double value, bool exact_imaginary) {
  return {value + 0.0, exact_imaginary ? FractionSum::floating_form : -FractionSum::floating_form};
}

// The fraction, or nothing where ratyp would go over to floating: out is then as it was.
bool multiply_exactly(const FractionSum& a, const FractionSum& b, FractionSum& out) {
  std::int64_t a_nu = a.numerator();
  std::int64_t b_nu = b.numerator();
  std::int64_t a_de = a.denominator();
  std::int64_t b_de = b.denominator();
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
  out = {static_cast<double>(nu), static_cast<double>(de)};
  return true;
}

bool add_exactly(FractionSum& a, const FractionSum& b) {
  const std::int64_t a_de = a.denominator();
  const std::int64_t b_de = b.denominator();
  const std::int64_t g = a_de == b_de ? a_de : divisor_of(a_de, b_de);
  const std::int64_t a_part = a_de / g;
  const std::int64_t b_part = b_de / g;
  const std::int64_t b_term = b.numerator() * a_part;
  const std::int64_t a_term = a.numerator() * b_part;
  const std::int64_t nu = a_term + b_term;
  // A sum of two numbers of the range that have opposite signs is in the range.
  if (!in_exact_range(a_term) || !in_exact_range(b_term) || !in_exact_range(nu)) return false;
  const std::int64_t g2 = g == 1 ? 1 : divisor_of(nu, g);
  const std::int64_t de = a_part * (b_de / g2);
  if (!in_exact_range(de)) return false;
  a = {static_cast<double>(g2 == 1 ? nu : nu / g2), static_cast<double>(de)};
  return true;
}

template <class Condition>
std::size_t count_sums(std::span<const FractionSum> sums, const Condition& condition) {
  std::size_t count = 0;
  run_loop([&]() KOV_INLINE {
    std::size_t all = 0;
    for (const FractionSum& sum : sums) all += condition(sum) ? 1 : 0;
    count = all;
  });
  return count;
}

Column exact_column(std::span<const FractionSum> sums) {
  std::array<Fraction32, block_capacity> parts;
  run_loop([&]() KOV_INLINE {
    for (std::size_t i = 0; i < sums.size(); ++i) {
      parts[i] = {static_cast<std::int32_t>(sums[i].number), static_cast<std::int32_t>(sums[i].divisor())};
    }
  });
  return Column::exact(std::span(parts.data(), sums.size()));
}

Column real_column(std::span<const FractionSum> sums) {
  const std::size_t exact = count_sums(sums, [](const FractionSum& sum) KOV_INLINE { return sum.exact(); });
  if (exact == sums.size()) return exact_column(sums);
  if (exact == 0) {
    std::array<double, block_capacity> parts;
    std::transform(sums.begin(), sums.end(), parts.begin(),
                   [](const FractionSum& sum) { return sum.number; });
    return finished_column(std::span<const double>(parts.data(), sums.size()));
  }
  std::array<ratyp, block_capacity> parts;
  std::transform(sums.begin(), sums.end(), parts.begin(), [](const FractionSum& sum) {
    return sum.exact() ? ratyp::reduced(sum.numerator(), sum.denominator()) : ratyp::floating(sum.number);
  });
  return finished_column(std::span<const ratyp>(parts.data(), sums.size()));
}

Column imaginary_column(std::span<const FractionSum> sums) {
  const std::size_t exact =
      count_sums(sums, [](const FractionSum& sum) KOV_INLINE { return sum.exact_imaginary(); });
  if (exact == sums.size()) return Column::zero(sums.size());
  if (exact == 0) return Column::floating_zero(sums.size());
  std::array<ratyp, block_capacity> parts;
  std::transform(sums.begin(), sums.end(), parts.begin(), [](const FractionSum& sum) {
    return sum.exact_imaginary() ? ratyp() : ratyp::floating(0.0);
  });
  return finished_column(std::span<const ratyp>(parts.data(), sums.size()));
}

}  // namespace

// Both parts of a product are floating as soon as one of the four parts that it is made of is. The real part
// is then still the exact product of two exact real parts, taken as a double.
FractionSum FractionArithmetic::product(const Factor& p, const Values& values, std::size_t i) {
  const FractionSum q = values[i];
  FractionSum product;
  const bool exact = p.exact() && q.exact() && multiply_exactly(p, q, product);
  const bool all_exact = p.both_exact() && q.both_exact();
  if (!exact) return floating_sum(p.value() * q.value(), all_exact);
  return all_exact ? product : floating_sum(product.value(), false);
}

void FractionArithmetic::add(Sum& sum, const Sum& product) {
  if (is_absent(sum)) {
    sum = product;
  } else if (!sum.exact() || !product.exact() || !add_exactly(sum, product)) {
    sum = floating_sum(sum.value() + product.value(), sum.exact_imaginary() && product.exact_imaginary());
  }
  if (is_absent(sum)) sum = {};
}

std::pair<Column, Column> FractionArithmetic::columns(std::span<const Sum> sums) {
  return {real_column(sums), imaginary_column(sums)};
}

}  // namespace kov
