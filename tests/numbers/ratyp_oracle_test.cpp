#include <gtest/gtest.h>

#include <charconv>
#include <cmath>

#include "numbers/describe.h"
#include "numbers/errors.h"
#include "numbers/number_source.h"
#include "numbers/ratyp.h"
#include "numbers/reference_number.h"

namespace kov {
namespace {

using test::describe;
using test::NumberSource;
using test::Reference;
using test::reference;
using test::same;

__extension__ typedef __int128 Wide;

constexpr int random_cases = 1'000'000;

std::string described(char operation, const ratyp& a, const ratyp& b) {
  return describe(a) + " " + operation + " " + describe(b);
}

/// Calls check(a, b) until it says no, with a million random pairs and all pairs of boundary values.
template <class Check>
void check_pairs(std::uint64_t seed, Check check) {
  NumberSource source(seed);
  for (int k = 0; k < random_cases; ++k) {
    const ratyp a = source.next_ratyp();
    const ratyp b = source.next_ratyp();
    if (!check(a, b)) return;
  }
  const auto values = test::boundary_values();
  ASSERT_GE(values.size(), 200U);
  for (const ratyp& a : values) {
    for (const ratyp& b : values) {
      if (!check(a, b)) return;
    }
  }
}

/// nu/de of an exact result against the true value true_nu/true_de, multiplied out.
bool is_true(const ratyp& result, Wide true_nu, Wide true_de) {
  return result.de() > 0 && result.nu() * true_de == true_nu * result.de();
}

struct Sum {
  static constexpr char symbol = '+';
  static ratyp run(const ratyp& a, const ratyp& b) { return a + b; }
  static void run_on_itself(ratyp& a) {
    const ratyp& b = a;
    a += b;
  }
  static Reference expected(const Reference& a, const Reference& b) { return test::sum(a, b); }
  static bool is_true(const ratyp& q, const ratyp& a, const ratyp& b) {
    return kov::is_true(q, Wide{a.nu()} * b.de() + Wide{b.nu()} * a.de(), Wide{a.de()} * b.de());
  }
};

struct Difference {
  static constexpr char symbol = '-';
  static ratyp run(const ratyp& a, const ratyp& b) { return a - b; }
  static void run_on_itself(ratyp& a) {
    const ratyp& b = a;
    a -= b;
  }
  static Reference expected(const Reference& a, const Reference& b) { return test::difference(a, b); }
  static bool is_true(const ratyp& q, const ratyp& a, const ratyp& b) {
    return kov::is_true(q, Wide{a.nu()} * b.de() - Wide{b.nu()} * a.de(), Wide{a.de()} * b.de());
  }
};

struct Product {
  static constexpr char symbol = '*';
  static ratyp run(const ratyp& a, const ratyp& b) { return a * b; }
  static void run_on_itself(ratyp& a) {
    const ratyp& b = a;
    a *= b;
  }
  static Reference expected(const Reference& a, const Reference& b) { return test::product(a, b); }
  static bool is_true(const ratyp& q, const ratyp& a, const ratyp& b) {
    return kov::is_true(q, Wide{a.nu()} * b.nu(), Wide{a.de()} * b.de());
  }
};

struct Quotient {
  static constexpr char symbol = '/';
  static ratyp run(const ratyp& a, const ratyp& b) { return a / b; }
  static void run_on_itself(ratyp& a) {
    const ratyp& b = a;
    a /= b;
  }
  static Reference expected(const Reference& a, const Reference& b) { return *test::quotient(a, b); }
  static bool is_true(const ratyp& q, const ratyp& a, const ratyp& b) {
    return kov::is_true(q, Wide{a.nu()} * b.de(), Wide{a.de()} * b.nu());
  }
};

template <class Operation>
bool result_is_right(const ratyp& a, const ratyp& b) {
  const ratyp result = Operation::run(a, b);
  const bool right = same(result, Operation::expected(reference(a), reference(b))) &&
                     (!result.exact() || Operation::is_true(result, a, b));
  EXPECT_TRUE(right) << described(Operation::symbol, a, b) << " gave " << describe(result);
  return right;
}

template <class Operation>
void check_on_itself(std::uint64_t seed) {
  NumberSource source(seed);
  std::vector<ratyp> values = test::boundary_values();
  for (int k = 0; k < 100'000; ++k) values.push_back(source.next_ratyp());
  for (const ratyp& value : values) {
    if (Operation::symbol == '/' && value.exact() && value.nu() == 0) continue;
    ratyp a = value;
    Operation::run_on_itself(a);
    ASSERT_TRUE(same(a, Operation::expected(reference(value), reference(value))))
        << described(Operation::symbol, value, value) << " on itself gave " << describe(a);
  }
}

template <class Operation>
void check_operation(std::uint64_t seed) {
  int exact = 0;
  check_pairs(seed, [&](const ratyp& a, const ratyp& b) {
    exact += a.exact() && b.exact() && Operation::run(a, b).exact();
    return result_is_right<Operation>(a, b);
  });
  // Neither side of the rule may be tested in passing only.
  EXPECT_GT(exact, random_cases / 4);
  EXPECT_LT(exact, random_cases * 3 / 4);
  check_on_itself<Operation>(seed + 1);
}

TEST(RatypOracle, Sums) { check_operation<Sum>(11); }
TEST(RatypOracle, Differences) { check_operation<Difference>(12); }
TEST(RatypOracle, Products) { check_operation<Product>(13); }

TEST(RatypOracle, Quotients) {
  int exact = 0;
  check_pairs(14, [&](const ratyp& a, const ratyp& b) {
    if (a.exact() && b.exact() && b.nu() == 0) {
      EXPECT_THROW(static_cast<void>(a / b), ratyp_error);
      return true;
    }
    exact += a.exact() && b.exact() && (a / b).exact();
    return result_is_right<Quotient>(a, b);
  });
  EXPECT_GT(exact, random_cases / 4);
  EXPECT_LT(exact, random_cases * 3 / 4);
  check_on_itself<Quotient>(15);
}

Reference incremented(const ratyp& a) {
  const std::int64_t nu = std::int64_t{a.nu()} + a.de();
  if (a.exact() && (a.nu() <= 0 || nu <= 2147483646)) return {true, nu, a.de()};
  return {false, 0, 1, to_double(a) + 1.0};
}

TEST(RatypOracle, Increments) {
  check_pairs(16, [](const ratyp& a, const ratyp&) {
    ratyp result = a;
    ++result;
    EXPECT_TRUE(same(result, incremented(a))) << describe(a) << " + 1 gave " << describe(result);
    return same(result, incremented(a));
  });
}

TEST(RatypOracle, LessThan) {
  int yes = 0;
  check_pairs(17, [&](const ratyp& a, const ratyp& b) {
    const bool right = (a < b) == test::less(reference(a), reference(b));
    EXPECT_TRUE(right) << described('<', a, b);
    yes += a < b;
    return right;
  });
  EXPECT_GT(yes, random_cases / 4);
}

TEST(RatypOracle, LessThanOfNeighbours) {
  NumberSource source(18);
  for (int k = 0; k < random_cases; ++k) {
    const std::int32_t de = source.next_integer(1, INT32_MAX - 2);
    const std::int32_t nu = source.next_integer(-de, de);
    const ratyp a(nu, de);
    const ratyp b(nu + source.next_integer(0, 1), de + source.next_integer(0, 2));
    ASSERT_EQ(a < b, test::less(reference(a), reference(b))) << described('<', a, b);
    ASSERT_EQ(b < a, test::less(reference(b), reference(a))) << described('<', b, a);
  }
}

TEST(RatypOracle, LessThanAnInteger) {
  NumberSource source(19);
  for (int k = 0; k < random_cases; ++k) {
    const ratyp a = source.next_ratyp();
    const bool near = source.next_integer(0, 1) == 1 && std::abs(to_double(a)) < 2147483000.0;
    const std::int32_t bound = near ? static_cast<std::int32_t>(to_double(a)) + source.next_integer(-1, 1)
                                    : source.next_integer(INT32_MIN, INT32_MAX);
    ASSERT_EQ(a < bound, test::less(reference(a), bound)) << describe(a) << " < " << bound;
  }
}

/// A value near a, or a itself in another form.
ratyp relative_of(const ratyp& a, NumberSource& source) {
  switch (source.next_integer(0, 3)) {
    case 0:
      return ratyp::floating(to_double(a));
    case 1:
      return a;
    case 2:
      return a + ratyp(0);
    default:
      return source.next_ratyp();
  }
}

TEST(RatypOracle, Equality) {
  NumberSource source(20);
  int yes = 0;
  for (int k = 0; k < random_cases; ++k) {
    const ratyp a = source.next_ratyp();
    const ratyp b = relative_of(a, source);
    ASSERT_EQ(a == b, test::equal(reference(a), reference(b))) << described('=', a, b);
    ASSERT_EQ(b == a, a == b) << described('=', b, a);
    ASSERT_NE(a != b, a == b) << described('=', a, b);
    yes += a == b;
  }
  EXPECT_GT(yes, random_cases / 2);
  EXPECT_LT(yes, random_cases);
}

std::string fifteen_digits(double value) {
  char buffer[40];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, 14).ptr;
  return std::string(buffer, end);
}

TEST(RatypOracle, TextAndBack) {
  NumberSource source(21);
  for (int k = 0; k < random_cases; ++k) {
    const ratyp q = source.next_ratyp();
    if (!std::isfinite(to_double(q)) || std::abs(to_double(q)) > 1e308) continue;
    const std::string text = to_text(q);
    ASSERT_EQ(text, test::reference_text(reference(q))) << describe(q);
    ratyp back;
    ASSERT_TRUE(from_text(text, back)) << text;
    if (q.exact()) {
      ASSERT_TRUE(same(back, reference(q))) << text << " gave " << describe(back);
    } else if (to_double(q) != 0.0) {
      ASSERT_EQ(fifteen_digits(to_double(back)), fifteen_digits(q.fl())) << text;
    } else {
      ASSERT_EQ(to_double(back), 0.0) << text;
    }
  }
}

}  // namespace
}  // namespace kov
