#include "tools/half_sums.h"

namespace kov {
namespace {

NumberedSums::List below(const NumberedSums::List& all, std::uint32_t number) {
  NumberedSums::List part;
  for (std::size_t i = 0; i < all.sums.size(); ++i) {
    if (all.numbers[i] >= number) continue;
    part.sums.push_back(all.sums[i]);
    part.numbers.push_back(all.numbers[i]);
  }
  return part;
}

}  // namespace

HalfSums::HalfSums(std::span<const double> values, std::uint32_t members, std::uint32_t elements, Signs signs,
                   std::size_t kept_of_equal)
    : NumberedSums(values, members, {.begin = 0, .end = elements}, signs, kept_of_equal),
      list_of_(elements + std::size_t{1}, 0) {
  // A list is at most twice as long as it would have to be; all of them together twice as long as the first.
  constexpr std::uint32_t short_enough = 64;
  std::uint32_t listed = count(elements);
  for (std::uint32_t t = elements; t > 0; --t) {
    if (count(t) >= short_enough && count(t) <= listed / 2) {
      listed = count(t);
      shorter_.push_back(below(shorter_.empty() ? sorted() : shorter_.back(), listed));
    }
    list_of_[t] = static_cast<std::uint8_t>(shorter_.size());
  }
  list_of_[0] = static_cast<std::uint8_t>(shorter_.size());
}

}  // namespace kov
