#include "numbers/cotyp.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "numbers/describe.h"
#include "numbers/errors.h"

namespace kov {
namespace {

using test::describe;
using test::quantity;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan_value = std::numeric_limits<double>::quiet_NaN();

static_assert(!std::is_constructible_v<cotyp, double> && !std::is_constructible_v<cotyp, float>);

TEST(Cotyp, Construction) {
  EXPECT_EQ(describe(cotyp()), "0/1, 0/1");
  EXPECT_EQ(describe(cotyp(1)), "1/1, 0/1");
  EXPECT_EQ(describe(cotyp(6, -4, 0, 7)), "-3/2, 0/1");
  EXPECT_EQ(describe(cotyp(1, 2, -3, -6)), "1/2, 1/2");
  EXPECT_EQ(describe(cotyp(ratyp(1, 2), ratyp::floating(0.25))), "1/2, fl 0.25");
  EXPECT_EQ(describe(cotyp::floating(0.5, -2.0)), "fl 0.5, fl -2");
  EXPECT_THROW(cotyp(1, 0, 1, 1), ratyp_error);
  EXPECT_THROW(cotyp(1, 1, 1, 0), ratyp_error);
}

cotyp in_place(cotyp a, char operation, const cotyp& b) {
  switch (operation) {
    case '+':
      return a += b;
    case '-':
      return a -= b;
    case '*':
      return a *= b;
    default:
      return a /= b;
  }
}

cotyp by_value(const cotyp& a, char operation, const cotyp& b) {
  switch (operation) {
    case '+':
      return a + b;
    case '-':
      return a - b;
    case '*':
      return a * b;
    default:
      return a / b;
  }
}

TEST(Cotyp, Arithmetic) {
  struct Row {
    std::string_view a;
    char operation;
    std::string_view b;
    std::string_view result;
  };
  // clang-format off
  constexpr Row rows[] = {
      {"1/2+1/3i", '+', "1/2-1/3i", "1/1, 0/1"},
      {"1/2+1/3i", '-', "1/2-1/3i", "0/1, 2/3"},
      {"1/2+0.5i", '+', "1/2+1/2i", "1/1, fl 1"},
      {"2147483646+1i", '+', "1+1i", "fl 2147483647, 2/1"},
      {"1+i", '*', "1-i", "2/1, 0/1"},
      {"i", '*', "i", "-1/1, 0/1"},
      {"1+2i", '*', "3+4i", "-5/1, 10/1"},
      {"1/2-1/3i", '*', "2/5+3/7i", "12/35, 17/210"},
      {"1+2i", '*', "0", "0/1, 0/1"},
      {"0.5+2i", '*', "2", "fl 1, fl 4"},
      {"65536+i", '*', "65536", "fl 4294967296, 65536/1"},
      {"65536", '*', "65536i", "0/1, fl 4294967296"},
      {"65536+65536i", '*', "65536+65536i", "fl 0, fl 8589934592"},
      {"1", '/', "i", "0/1, -1/1"},
      {"1+2i", '/', "3+4i", "11/25, 2/25"},
      {"-5+10i", '/', "1+2i", "3/1, 4/1"},
      {"0", '/', "1+i", "0/1, 0/1"},
      {"1", '/', "-2", "-1/2, 0/1"},
      {"1/2+1/3i", '/', "0.5", "fl 1, fl 0.6666666666666666"},
      {"1", '/', "65536", "fl 1.52587890625e-05, fl 0"},
      {"46340", '/', "46340", "1/1, 0/1"},
  };
  // clang-format on
  for (const Row& row : rows) {
    const cotyp a = quantity(row.a);
    const cotyp b = quantity(row.b);
    EXPECT_EQ(describe(in_place(a, row.operation, b)), row.result) << row.a << row.operation << row.b;
    EXPECT_EQ(describe(by_value(a, row.operation, b)), row.result) << row.a << row.operation << row.b;
  }
}

TEST(Cotyp, DivisionByExactZeroThrowsAndChangesNothing) {
  for (const std::string_view text : {"1", "0", "1/2+3i", "2.5", "1/2+0.5i", "0.5+1/2i"}) {
    cotyp a = quantity(text);
    const std::string before = describe(a);
    try {
      a /= cotyp(0);
      ADD_FAILURE() << text << " was divided by 0";
    } catch (const ratyp_error& error) {
      EXPECT_STREQ(error.what(), "ratyp error: de=0");
    }
    EXPECT_EQ(describe(a), before);
  }
}

TEST(Cotyp, DivisionByFloatingZeroIsNotIntercepted) {
  EXPECT_FALSE(is_finite(quantity("1+i") / quantity("0.0")));
  EXPECT_FALSE(is_finite(quantity("1+i") / quantity("0.0i")));
}

TEST(Cotyp, OperandMayBeTheLeftOneItself) {
  const auto result = [](std::string_view text, void (*operation)(cotyp&)) {
    cotyp a = quantity(text);
    operation(a);
    return describe(a);
  };
  EXPECT_EQ(result("1/2+3i",
                   [](cotyp& a) {
                     const cotyp& b = a;
                     a += b;
                   }),
            "1/1, 6/1");
  EXPECT_EQ(result("1/2+3i",
                   [](cotyp& a) {
                     const cotyp& b = a;
                     a -= b;
                   }),
            "0/1, 0/1");
  EXPECT_EQ(result("1/2+3i",
                   [](cotyp& a) {
                     const cotyp& b = a;
                     a *= b;
                   }),
            "-35/4, 3/1");
  EXPECT_EQ(result("1/2+3i",
                   [](cotyp& a) {
                     const cotyp& b = a;
                     a /= b;
                   }),
            "1/1, 0/1");
  EXPECT_EQ(result("0.5+3i",
                   [](cotyp& a) {
                     const cotyp& b = a;
                     a *= b;
                   }),
            "fl -8.75, fl 3");
}

TEST(Cotyp, ZeroTest) {
  EXPECT_TRUE(is_zero(cotyp()));
  EXPECT_TRUE(is_zero(cotyp::floating(0.0, -0.0)));
  EXPECT_TRUE(is_zero(cotyp(ratyp(0), ratyp::floating(0.0))));
  EXPECT_FALSE(is_zero(cotyp(1)));
  EXPECT_FALSE(is_zero(quantity("1i")));
  EXPECT_FALSE(is_zero(quantity("1E-300")));
  EXPECT_FALSE(is_zero(quantity("1E-300i")));
}

TEST(Cotyp, Equality) {
  EXPECT_EQ(quantity("1/2+3i"), quantity("0.5+3.0i"));
  EXPECT_NE(quantity("1/2+3i"), quantity("1/2-3i"));
  EXPECT_NE(quantity("1/2+3i"), quantity("1/3+3i"));
  EXPECT_FALSE(quantity("1/2+3i") != quantity("2/4+3i"));
}

TEST(Cotyp, SquaredMagnitude) {
  EXPECT_EQ(describe(qq(quantity("3+4i"))), "25/1");
  EXPECT_EQ(describe(qq(quantity("-1/2-1/3i"))), "13/36");
  EXPECT_EQ(describe(qq(quantity("0.5+1/2i"))), "fl 0.5");
  EXPECT_EQ(describe(qq(quantity("65536"))), "fl 4294967296");
  EXPECT_EQ(describe(qq(cotyp())), "0/1");
}

TEST(Cotyp, FloatingForGood) {
  cotyp q = to_float(quantity("1/3-2i"));
  EXPECT_EQ(describe(q), "fl 0.3333333333333333, fl -2");
  EXPECT_EQ(to_text(q.re), "0.333333333333333");
  q *= cotyp(3);
  EXPECT_EQ(describe(q), "fl 1, fl -6");
  EXPECT_EQ(describe(to_float(cotyp())), "fl 0, fl 0");
}

TEST(Cotyp, FiniteValues) {
  EXPECT_TRUE(is_finite(quantity("1/2+3i")));
  EXPECT_TRUE(is_finite(quantity("1.7976931348623157E308")));
  EXPECT_FALSE(is_finite(cotyp::floating(infinity, 0.0)));
  EXPECT_FALSE(is_finite(cotyp::floating(0.0, -infinity)));
  EXPECT_FALSE(is_finite(cotyp::floating(nan_value, 0.0)));
  EXPECT_FALSE(is_finite(cotyp(ratyp(1), ratyp::floating(nan_value))));
}

TEST(Cotyp, RequireFinite) {
  EXPECT_NO_THROW(require_finite(quantity("1/2+1E300i")));
  for (const cotyp& q : {cotyp::floating(infinity, 0.0), cotyp::floating(0.0, -infinity),
                         cotyp::floating(nan_value, infinity)}) {
    try {
      require_finite(q);
      ADD_FAILURE() << describe(q);
    } catch (const floating_overflow& error) {
      EXPECT_STREQ(error.what(), "floating point overflow");
    }
  }
  for (const cotyp& q : {cotyp::floating(nan_value, 0.0), cotyp::floating(0.0, nan_value)}) {
    try {
      require_finite(q);
      ADD_FAILURE() << describe(q);
    } catch (const floating_overflow&) {
      ADD_FAILURE() << "a NaN is no overflow";
    } catch (const math_error& error) {
      EXPECT_STREQ(error.what(), "invalid floating point operation");
    }
  }
}

}  // namespace
}  // namespace kov
