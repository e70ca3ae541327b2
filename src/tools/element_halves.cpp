#include "tools/element_halves.h"

#include <algorithm>

namespace kov {
namespace {

std::vector<NumberedSums> sums_of(const OrderTerms& of, ElementSpan elements) {
  const std::uint32_t most = std::min(of.order(), elements.end - elements.begin);
  return NumberedSums::of_each_size(of.values(), most, elements, of.signs(), of.kept_of_equal());
}

}  // namespace

ElementHalves::ElementHalves(const OrderTerms& terms, std::uint32_t low, std::uint32_t middle)
    : low_count_(low),
      middle_count_(middle),
      low_(sums_of(terms, {.begin = 0, .end = low})),
      middle_(sums_of(terms, {.begin = low, .end = low + middle})) {}

}  // namespace kov
