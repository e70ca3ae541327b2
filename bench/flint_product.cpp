#include "bench/flint_product.h"

#ifdef KOV_FLINT

#include <flint/fmpq_mpoly.h>

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

#include "bench/stopwatch.h"

namespace kov {
namespace {

bool is_rational(const cotyp& q) { return q.re.exact() && q.im.exact() && q.im.nu() == 0; }

/// One term of a polynomial: its coordinates are the exponents, once a low bound is taken away.
struct Term {
  Lk key;
  ratyp coefficient;
};
using Terms = std::vector<Term>;

std::optional<Terms> terms_of(const Lmap& row) {
  Terms terms;
  for (auto point = row.begin(); point != row.end(); ++point) {
    if (!is_rational(point.quantity()) || point.key().l() != 0) return {};
    terms.push_back({point.key(), point.quantity().re});
  }
  return terms;
}

std::optional<Terms> terms_of(const Algadd& algadd) {
  Terms terms;
  for (int e = 0; e < algadd.used_length(0); ++e) {
    const AlgaddEntry& entry = algadd.entry(0, e);
    if (!is_rational(entry.p) || entry.source_l() != 0 || entry.ldest != 0) return {};
    terms.push_back({entry.offset, entry.p.re});
  }
  return terms;
}

/// The polynomials of one run, freed with it.
class Polynomial {
 public:
  explicit Polynomial(const fmpq_mpoly_ctx_t& context) : context_(context) {
    fmpq_mpoly_init(value, context_);
  }
  ~Polynomial() { fmpq_mpoly_clear(value, context_); }
  Polynomial(const Polynomial&) = delete;
  Polynomial& operator=(const Polynomial&) = delete;

  /// Over the least common denominator, and then reduced, which is the form that the library computes in.
  void take(const Terms& terms);

  fmpq_mpoly_t value;

 private:
  const fmpq_mpoly_ctx_t& context_;
};

class Integer {
 public:
  explicit Integer(ulong start) { fmpz_init_set_ui(value, start); }
  ~Integer() { fmpz_clear(value); }
  Integer(const Integer&) = delete;
  Integer& operator=(const Integer&) = delete;

  fmpz_t value;
};

Lk low_bound(const Terms& terms) {
  Lk low = Lk::filled(std::numeric_limits<std::int32_t>::max());
  for (const Term& term : terms) {
    for (std::size_t i = 0; i < low.coo.size(); ++i) low.coo[i] = std::min(low.coo[i], term.key.coo[i]);
  }
  return low;
}

/// k1 ... as many as vary in the row: more variables than needed would slow the library down.
slong variables_of(const Lmap& row) {
  const KeyBox& box = row.rows().begin()->box();
  slong count = 1;
  for (std::size_t i = 1; i < l_position; ++i) {
    if (box.min.coo[i] != box.max.coo[i]) count = static_cast<slong>(i);
  }
  return count;
}

void Polynomial::take(const Terms& terms) {
  Integer denominator(1);
  for (const Term& term : terms) {
    const Integer part(static_cast<ulong>(term.coefficient.de()));
    fmpz_lcm(denominator.value, denominator.value, part.value);
  }
  const Lk low = low_bound(terms);
  Integer numerator(0);
  for (const Term& term : terms) {
    std::array<ulong, MaxDimCount> exponents{};
    for (std::size_t i = 0; i < static_cast<std::size_t>(context_->zctx->minfo->nvars); ++i) {
      exponents[i] = static_cast<ulong>(wrapping_subtract(term.key.coo[i + 1], low.coo[i + 1]));
    }
    fmpz_divexact_si(numerator.value, denominator.value, term.coefficient.de());
    fmpz_mul_si(numerator.value, numerator.value, term.coefficient.nu());
    fmpz_mpoly_push_term_fmpz_ui(value->zpoly, numerator.value, exponents.data(), context_->zctx);
  }
  fmpz_mpoly_sort_terms(value->zpoly, context_->zctx);
  fmpq_set_fmpz_frac(value->content, Integer(1).value, denominator.value);
  fmpq_mpoly_reduce(value, context_);
}

}  // namespace

std::optional<FlintProduct> flint_product(const Workload& workload, int runs) {
  const std::optional<Terms> table = terms_of(workload.algadd);
  const std::optional<Terms> row = terms_of(workload.row);
  if (!table || !row) return {};
  fmpq_mpoly_ctx_t context;
  fmpq_mpoly_ctx_init(context, variables_of(workload.row), ORD_LEX);
  FlintProduct result{.seconds = std::numeric_limits<double>::infinity()};
  {
    Polynomial a(context);
    Polynomial b(context);
    a.take(*row);
    b.take(*table);
    for (int run = 0; run < runs; ++run) {
      Polynomial product(context);
      const double seconds =
          processor_seconds_of([&] { fmpq_mpoly_mul(product.value, a.value, b.value, context); });
      result.seconds = std::min(result.seconds, seconds);
      result.terms = static_cast<std::size_t>(fmpq_mpoly_length(product.value, context));
    }
  }
  fmpq_mpoly_ctx_clear(context);
  return result;
}

}  // namespace kov

#else

namespace kov {

std::optional<FlintProduct> flint_product(const Workload&, int) { return {}; }

}  // namespace kov

#endif
