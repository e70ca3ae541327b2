#include <gtest/gtest.h>

#include <cmath>
#include <optional>

#include "numbers/cotyp.h"
#include "numbers/describe.h"
#include "numbers/errors.h"
#include "numbers/number_source.h"
#include "numbers/reference_number.h"

namespace kov {
namespace {

using test::ComplexReference;
using test::describe;
using test::NumberSource;
using test::reference;
using test::same;

constexpr int random_cases = 1'000'000;

/// Some two hundred quantities of two boundary values each.
std::vector<cotyp> boundary_quantities() {
  // clang-format off
  const ratyp parts[] = {
      0, 1, -1, {1, 2}, {-2, 3}, 46341, 65536, 2147483646, -2147483647, INT32_MIN, INT32_MAX, {1, INT32_MAX},
      {-2147483647, 2147483646}, ratyp::floating(0.0), ratyp::floating(0.5),
  };
  // clang-format on
  std::vector<cotyp> values;
  for (const ratyp& re : parts) {
    for (const ratyp& im : parts) values.emplace_back(re, im);
  }
  return values;
}

/// Calls check(a, b) until it says no, with random pairs and all pairs of boundary quantities.
template <class Check>
void check_pairs(std::uint64_t seed, int count, Check check) {
  NumberSource source(seed);
  for (int k = 0; k < count; ++k) {
    const cotyp a = source.next_cotyp();
    const cotyp b = source.next_cotyp();
    if (!check(a, b)) return;
  }
  const auto values = boundary_quantities();
  ASSERT_GE(values.size(), 200U);
  for (const cotyp& a : values) {
    for (const cotyp& b : values) {
      if (!check(a, b)) return;
    }
  }
}

struct Sum {
  static cotyp& run(cotyp& a, const cotyp& b) { return a += b; }
  static ComplexReference expected(const cotyp& a, const cotyp& b) { return sum(reference(a), reference(b)); }
};

struct Difference {
  static cotyp& run(cotyp& a, const cotyp& b) { return a -= b; }
  static ComplexReference expected(const cotyp& a, const cotyp& b) {
    return difference(reference(a), reference(b));
  }
};

struct Product {
  static cotyp& run(cotyp& a, const cotyp& b) { return a *= b; }
  static ComplexReference expected(const cotyp& a, const cotyp& b) {
    return product(reference(a), reference(b));
  }
};

struct Quotient {
  static cotyp& run(cotyp& a, const cotyp& b) { return a /= b; }
  static std::optional<ComplexReference> expected(const cotyp& a, const cotyp& b) {
    return quotient(reference(a), reference(b));
  }
};

/// What is expected of a pair: the reference result, or an exception that leaves a as it was.
template <class Operation>
bool result_is_right(const cotyp& a, const cotyp& b, const cotyp& operand, cotyp& result) {
  const std::optional<ComplexReference> expected = Operation::expected(a, b);
  bool thrown = false;
  try {
    Operation::run(result, operand);
  } catch (const ratyp_error&) {
    thrown = true;
  }
  const bool right = thrown == !expected && same(result, expected ? *expected : reference(a));
  EXPECT_TRUE(right) << describe(a) << " and " << describe(b) << " gave " << describe(result);
  return right;
}

template <class Operation>
void check_operation(std::uint64_t seed) {
  int exact = 0;
  check_pairs(seed, random_cases, [&exact](const cotyp& a, const cotyp& b) {
    cotyp result = a;
    const bool right = result_is_right<Operation>(a, b, b, result);
    exact += result.re.exact() && result.im.exact();
    return right;
  });
  // Neither exact nor floating results may be tested in passing only.
  EXPECT_GT(exact, random_cases / 8);
  EXPECT_LT(exact, random_cases * 7 / 8);
  check_pairs(seed + 1, random_cases / 10, [](const cotyp& a, const cotyp&) {
    cotyp result = a;
    return result_is_right<Operation>(a, a, result, result);
  });
}

TEST(CotypOracle, Sums) { check_operation<Sum>(31); }
TEST(CotypOracle, Differences) { check_operation<Difference>(33); }
TEST(CotypOracle, Products) { check_operation<Product>(35); }
TEST(CotypOracle, Quotients) { check_operation<Quotient>(37); }

__extension__ typedef unsigned __int128 Wide;

/// Fractions without overflow: numerator and denominator modulo 2^128. Two that are equal stay so, two
/// that differ are taken for equal once in 2^128.
struct Residue {
  Wide nu;
  Wide de;
};

Residue residue(const ratyp& q) {
  return {static_cast<Wide>(std::int64_t{q.nu()}), static_cast<Wide>(std::int64_t{q.de()})};
}
Residue operator*(Residue a, Residue b) { return {a.nu * b.nu, a.de * b.de}; }
Residue operator+(Residue a, Residue b) { return {a.nu * b.de + b.nu * a.de, a.de * b.de}; }
Residue operator-(Residue a, Residue b) { return {a.nu * b.de - b.nu * a.de, a.de * b.de}; }
bool operator==(Residue a, Residue b) { return a.nu * b.de == b.nu * a.de; }

bool is_exact(const cotyp& q) { return q.re.exact() && q.im.exact(); }

/// Does a times b give c, in true arithmetic?
bool is_true_product(const cotyp& a, const cotyp& b, const cotyp& c) {
  const Residue a_re = residue(a.re);
  const Residue a_im = residue(a.im);
  const Residue b_re = residue(b.re);
  const Residue b_im = residue(b.im);
  return a_re * b_re - a_im * b_im == residue(c.re) && a_im * b_re + a_re * b_im == residue(c.im);
}

TEST(CotypOracle, ExactProductsAndQuotientsAreTrue) {
  NumberSource source(39);
  int checked = 0;
  for (int k = 0; k < random_cases; ++k) {
    const cotyp a = source.next_cotyp();
    const cotyp b = source.next_cotyp();
    if (!is_exact(a) || !is_exact(b)) continue;
    if (const cotyp c = a * b; is_exact(c)) {
      ASSERT_TRUE(is_true_product(a, b, c)) << describe(a) << " * " << describe(b) << ": " << describe(c);
      ++checked;
    }
    if (is_zero(b)) continue;
    if (const cotyp c = a / b; is_exact(c)) {
      ASSERT_TRUE(is_true_product(c, b, a)) << describe(a) << " / " << describe(b) << ": " << describe(c);
      ++checked;
    }
  }
  EXPECT_GT(checked, random_cases / 4);
}

TEST(CotypOracle, ZeroEqualityAndSquaredMagnitude) {
  check_pairs(40, random_cases, [](const cotyp& a, const cotyp& b) {
    const cotyp other = is_exact(b) ? to_float(a) : b;
    const bool right = (a == other) == equal(reference(a), reference(other)) &&
                       is_zero(a) == (to_double(a.re) == 0.0 && to_double(a.im) == 0.0) &&
                       same(qq(a), squared_magnitude(reference(a)));
    EXPECT_TRUE(right) << describe(a) << " and " << describe(other);
    return right;
  });
}

/// An exact part is to come back as it is, a floating one up to its 15 digits.
bool comes_back(const ratyp& part, const ratyp& back) {
  if (part.exact()) return part.nu() == 0 ? back == part : same(back, reference(part));
  return std::abs(to_double(back) - part.fl()) <= std::abs(part.fl()) * 5e-15;
}

TEST(CotypOracle, TextAndBack) {
  check_pairs(41, random_cases, [](const cotyp& q, const cotyp&) {
    const double largest = std::max(std::abs(to_double(q.re)), std::abs(to_double(q.im)));
    const double smallest = std::min(std::abs(to_double(q.re)), std::abs(to_double(q.im)));
    // Beyond are rounding to the largest double and the loss of digits near zero, tested on their own.
    if (!is_finite(q) || largest > 1e308 || (smallest > 0.0 && smallest < 1e-300)) return true;
    const std::string text = to_text(q);
    cotyp back;
    const bool right = text == test::reference_text(reference(q)) && from_text(text, back) &&
                       comes_back(q.re, back.re) && comes_back(q.im, back.im);
    EXPECT_TRUE(right) << describe(q) << ": " << text << ", back as " << describe(back);
    return right;
  });
}

}  // namespace
}  // namespace kov
