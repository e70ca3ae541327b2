#include "algadd/fraction_block.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "numbers/batch_gcd.h"
#include "numbers/vector_dispatch.h"

namespace kov {

namespace {

// Numerators over one denominator.
void take_integers(const Column& column, std::span<FractionSum> numbers) {
  const auto denominator = static_cast<double>(column.denominator());
  for (std::size_t first = 0; first < numbers.size(); first += GcdBatch::capacity) {
    const std::size_t count = std::min(GcdBatch::capacity, numbers.size() - first);
    const std::int32_t* const numerators = column.integers() + first;
    FractionSum* const out = numbers.data() + first;
    run_loop([=]() KOV_INLINE {
      GcdBatch pairs;
      for (std::size_t i = 0; i < count; ++i) {
        pairs.set(i, std::abs(static_cast<double>(numerators[i])), denominator);
      }
      batch_gcd(pairs, count);
      for (std::size_t i = 0; i < count; ++i) {
        const auto divisor = static_cast<double>(static_cast<std::int32_t>(pairs.x[i]));
        out[i] = {static_cast<double>(numerators[i]) / divisor, denominator / divisor};
      }
    });
  }
}

}  // namespace

FractionBlock::FractionBlock(const Block& block) {
  const PartForm im = block.im().form();
  if (im == PartForm::zero && block.re().form() == PartForm::fractions) {
    fractions_ = block.re().fractions();
    return;
  }
  numbers_.resize(block.size());
  if (block.re().form() == PartForm::integers) {
    take_integers(block.re(), numbers_);
  } else {
    for (std::size_t i = 0; i < numbers_.size(); ++i)
      numbers_[i] = fraction_sum({block.re().get(i), ratyp()});
  }
  if (im == PartForm::zero) return;
  for (std::size_t i = 0; i < numbers_.size(); ++i) {
    if (!block.im().get(i).exact()) numbers_[i].form = -numbers_[i].form;
  }
}

}  // namespace kov
