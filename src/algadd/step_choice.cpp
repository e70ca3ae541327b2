#include "algadd/step_choice.h"

#include <algorithm>
#include <numeric>
#include <optional>

namespace kov {

namespace {

/// What is known of many parts of numbers, those of all factors or of all quantities.
struct PartFacts {
  /// Some part is an exact number other than 0 that is an integer, or is a fraction.
  bool integers = false;
  bool fractions = false;
  /// Some part is floating and may differ from 0.0.
  bool doubles = false;
  /// Some part is floating.
  bool floating = false;

  bool only_zeros() const { return !integers && !fractions && !doubles; }
};

PartFacts facts_of(const ratyp& part) {
  PartFacts facts;
  if (part.exact()) {
    facts.integers = part.nu() != 0 && part.de() == 1;
    facts.fractions = part.de() != 1;
  } else {
    facts.floating = true;
    facts.doubles = part.fl() != 0.0;
  }
  return facts;
}

PartFacts merged(const PartFacts& a, const PartFacts& b) {
  return {a.integers || b.integers, a.fractions || b.fractions, a.doubles || b.doubles,
          a.floating || b.floating};
}

PartFacts facts_of(const Column& column) {
  switch (column.form()) {
    case PartForm::zero:
      return {};
    case PartForm::floating_zero:
      return {.floating = true};
    case PartForm::integers:
      return {.integers = column.denominator() == 1, .fractions = column.denominator() != 1};
    case PartForm::fractions:
      return {.integers = true, .fractions = true};
    case PartForm::doubles:
      return {.doubles = true, .floating = true};
    case PartForm::mixed_zeros:
      return {.floating = true};
    case PartForm::mixed_integers:
      return {.integers = true, .doubles = true, .floating = true};
    case PartForm::mixed:
      break;
  }
  return {.integers = true, .fractions = true, .doubles = true, .floating = true};
}

/// What is known of all factors, or of all quantities that the terms read.
struct NumberFacts {
  PartFacts re;
  PartFacts im;
  /// Every number has a floating part.
  bool each_floating = true;

  bool exact() const { return !re.floating && !im.floating; }
  bool integers_if_exact() const { return !re.fractions && !im.fractions; }
};

bool is_all_floating(const Column& column) {
  return column.form() == PartForm::doubles || column.form() == PartForm::floating_zero;
}

NumberFacts facts_of_factors(const StepPlan& plan) {
  NumberFacts facts;
  for (const StepTerm& term : plan.terms) {
    facts.re = merged(facts.re, facts_of(term.p.re));
    facts.im = merged(facts.im, facts_of(term.p.im));
    facts.each_floating = facts.each_floating && !(term.p.re.exact() && term.p.im.exact());
  }
  return facts;
}

template <class Function>
void for_each_block(const StepPlan& plan, const Function& f) {
  for (const SourceStream& stream : plan.streams) {
    for (std::size_t i = 0; i < stream.block_count(); ++i) f(stream.block(i));
  }
}

NumberFacts facts_of_quantities(const StepPlan& plan) {
  NumberFacts facts;
  for_each_block(plan, [&](const Block& block) {
    facts.re = merged(facts.re, facts_of(block.re()));
    facts.im = merged(facts.im, facts_of(block.im()));
    facts.each_floating = facts.each_floating && (is_all_floating(block.re()) || is_all_floating(block.im()));
  });
  return facts;
}

// A product of two exact parts is the product of their doubles, rounded or not, when both are integers or
// one is 0.
bool same_in_doubles(const PartFacts& p, const PartFacts& q) {
  const bool p_zero_if_exact = !p.integers && !p.fractions;
  const bool q_zero_if_exact = !q.integers && !q.fractions;
  return p_zero_if_exact || q_zero_if_exact || (!p.fractions && !q.fractions);
}

bool doubles_suffice(const NumberFacts& p, const NumberFacts& q) {
  return (p.each_floating || q.each_floating) && same_in_doubles(p.re, q.re) && same_in_doubles(p.re, q.im) &&
         same_in_doubles(p.im, q.re) && same_in_doubles(p.im, q.im);
}

/// The least common multiple of denominators, as long as it stays within the exact range.
class CommonDenominator {
 public:
  void add(std::int64_t denominator) {
    if (value_ <= nu_max_int) value_ = std::lcm(value_, denominator);
  }
  bool exists() const { return value_ <= nu_max_int; }
  std::int32_t value() const { return static_cast<std::int32_t>(value_); }

 private:
  std::int64_t value_ = 1;
};

// The denominator divides the common one.
double scaled(double numerator, std::int32_t denominator, std::int32_t common) {
  const std::int32_t factor = common / denominator;
  return numerator * factor;
}

double largest(const Column& column, std::int32_t denominator) {
  return scaled(column.largest_numerator(), column.denominator(), denominator);
}

double size_of_part(const ratyp& part, std::int32_t denominator) {
  return scaled(static_cast<double>(magnitude(part.nu())), part.de(), denominator);
}

// The largest |re| + |im| of a stream, as a numerator.
double largest_in(const SourceStream& stream, std::int32_t denominator) {
  double size = 0.0;
  for (std::size_t i = 0; i < stream.block_count(); ++i) {
    const Block& block = stream.block(i);
    size = std::max(size, largest(block.re(), denominator) + largest(block.im(), denominator));
  }
  return size;
}

// Every destination takes at most one contribution of each term, so the sums over the terms bound all that
// ever stands in it, and all numerators on the way there: those of reduced fractions are no larger than those
// over the common denominator. The doubles round by far less than the one that the limit is short of.
bool stays_exact(const StepPlan& plan, const IntegerNumbers& numbers) {
  std::vector<double> sizes;
  for (const SourceStream& stream : plan.streams) {
    sizes.push_back(largest_in(stream, numbers.source_denominator));
  }
  double bound = 0.0;
  for (const StepTerm& term : plan.terms) {
    const double p = size_of_part(term.p.re, numbers.factor_denominator) +
                     size_of_part(term.p.im, numbers.factor_denominator);
    bound += p * sizes[term.stream];
  }
  const std::int64_t denominator = std::int64_t{numbers.source_denominator} * numbers.factor_denominator;
  return bound < double{nu_max_int} && denominator <= nu_max_int;
}

std::optional<IntegerNumbers> integers_that_stay_exact(const StepPlan& plan) {
  CommonDenominator sources;
  CommonDenominator factors;
  bool integers = true;
  for_each_block(plan, [&](const Block& block) {
    integers =
        integers && block.re().form() != PartForm::fractions && block.im().form() != PartForm::fractions;
    sources.add(block.re().denominator());
    sources.add(block.im().denominator());
  });
  for (const StepTerm& term : plan.terms) {
    factors.add(term.p.re.de());
    factors.add(term.p.im.de());
  }
  if (!integers || !sources.exists() || !factors.exists()) return std::nullopt;
  const IntegerNumbers numbers{sources.value(), factors.value()};
  return stays_exact(plan, numbers) ? std::optional(numbers) : std::nullopt;
}

}  // namespace

StepArithmetic choose_arithmetic(const StepPlan& plan) {
  const NumberFacts p = facts_of_factors(plan);
  const NumberFacts q = facts_of_quantities(plan);
  const bool real = p.im.only_zeros() && q.im.only_zeros();
  if (p.exact() && q.exact()) {
    if (const auto numbers = integers_that_stay_exact(plan)) {
      if (real) return RealArithmetic<IntegerNumbers>{*numbers};
      return ComplexArithmetic<IntegerNumbers>{*numbers};
    }
  }
  if (doubles_suffice(p, q)) {
    if (real) return RealArithmetic<DoubleNumbers>{};
    return ComplexArithmetic<DoubleNumbers>{};
  }
  if (p.integers_if_exact() && q.integers_if_exact()) {
    if (real) return CountedRealArithmetic{};
    return CountedComplexArithmetic{};
  }
  if (real) return FractionArithmetic{};
  return QuantityArithmetic{};
}

}  // namespace kov
