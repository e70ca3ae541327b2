#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "numbers/cotyp.h"
#include "numbers/ratyp.h"

namespace kov::test {

/// The oracle of the arithmetic: the same rules written from the mathematics. True results are formed
/// and reduced in 64 bits, which hold every sum and product of two fractions of 32-bit integers; then
/// it is asked whether the numbers that the rules name lie in the exact range. Shares no code with
/// what it judges.
struct Reference {
  bool exact = true;
  std::int64_t nu = 0;
  std::int64_t de = 1;
  double fl = 0.0;

  double value() const { return exact ? static_cast<double>(nu) / static_cast<double>(de) : fl; }
};

Reference reference(const ratyp& q);

/// The same representation of the same value, floating values bit by bit (any NaN is like any other).
bool same(const ratyp& q, const Reference& expected);

Reference sum(const Reference& a, const Reference& b);
Reference difference(const Reference& a, const Reference& b);
Reference product(const Reference& a, const Reference& b);
/// Nothing when an exact value is divided by an exact zero.
std::optional<Reference> quotient(const Reference& a, const Reference& b);
bool less(const Reference& a, const Reference& b);
bool less(const Reference& a, std::int32_t k);
bool equal(const Reference& a, const Reference& b);

struct ComplexReference {
  Reference re;
  Reference im;
};

ComplexReference reference(const cotyp& q);
bool same(const cotyp& q, const ComplexReference& expected);

ComplexReference sum(const ComplexReference& a, const ComplexReference& b);
ComplexReference difference(const ComplexReference& a, const ComplexReference& b);
ComplexReference product(const ComplexReference& a, const ComplexReference& b);
/// Nothing when b is an exact zero.
std::optional<ComplexReference> quotient(const ComplexReference& a, const ComplexReference& b);
bool equal(const ComplexReference& a, const ComplexReference& b);
Reference squared_magnitude(const ComplexReference& q);

/// The text of a number, the floating form built from its leading 15 decimal digits.
std::string reference_text(const Reference& q);
std::string reference_text(const ComplexReference& q);

}  // namespace kov::test
