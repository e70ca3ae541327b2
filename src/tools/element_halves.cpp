#include "tools/element_halves.h"

#include <algorithm>
#include <future>

namespace kov {
namespace {

std::vector<NumberedSums> sums_of(const OrderTerms& of, ElementSpan elements) {
  const std::uint32_t most = std::min(of.order(), elements.end - elements.begin);
  return NumberedSums::of_each_size(of.values(), most, elements, of.signs(), of.kept_of_equal());
}

}  // namespace

ElementHalves::ElementHalves(const OrderTerms& terms, std::uint32_t low, std::uint32_t middle,
                             unsigned threads)
    : low_count_(low), middle_count_(middle) {
  // Short lists are made sooner than a thread is started.
  constexpr std::uint32_t worth_a_thread = 10;
  const auto policy = threads > 1 && low >= worth_a_thread ? std::launch::async : std::launch::deferred;
  auto making_middle =
      std::async(policy, [&] { return sums_of(terms, {.begin = low, .end = low + middle}); });
  low_ = sums_of(terms, {.begin = 0, .end = low});
  middle_ = making_middle.get();
}

}  // namespace kov
