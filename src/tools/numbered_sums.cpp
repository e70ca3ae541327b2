#include "tools/numbered_sums.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace kov {
namespace {

struct NumberedSum {
  double sum;
  std::uint32_t number;

  friend bool operator<(const NumberedSum& a, const NumberedSum& b) {
    return a.sum != b.sum ? a.sum < b.sum : a.number < b.number;
  }
};

/// Counts an ascending index combination on: the lowest index that can grow without meeting the next one
/// grows, and those below it start anew. The highest one may always grow.
void count_on(std::vector<std::uint32_t>& combination) {
  std::size_t i = 0;
  while (i + 1 < combination.size() && combination[i] + 1 == combination[i + 1]) ++i;
  ++combination[i];
  std::iota(combination.begin(), combination.begin() + static_cast<std::ptrdiff_t>(i), 0U);
}

/// Drops what is behind the first so many sums of each value.
void keep_first_of_equal(std::vector<NumberedSum>& sorted, std::size_t kept) {
  std::size_t used = 0;
  std::size_t equal = 0;
  for (const NumberedSum& next : sorted) {
    equal = used > 0 && sorted[used - 1].sum == next.sum ? equal + 1 : 1;
    if (equal <= kept) sorted[used++] = next;
  }
  sorted.resize(used);
}

}  // namespace

NumberedSums::NumberedSums(std::span<const double> values, std::uint32_t members, ElementSpan elements,
                           Signs signs, std::size_t kept_of_equal)
    : members_(members), sign_bits_(signs == Signs::plus ? 0 : members) {
  count_combinations(elements.end - elements.begin);
  list_combinations(elements);
  sorted_ = sorted_sums(values, kept_of_equal);
}

void NumberedSums::count_combinations(std::uint32_t elements) {
  // Row by row of Pascal's triangle, C(t, m) = C(t - 1, m) + C(t - 1, m - 1), all but the last in place.
  std::vector<std::uint64_t> row(members_ + 1, 0);
  row[0] = 1;
  for (std::uint32_t t = 0; t <= elements; ++t) {
    count_.push_back(static_cast<std::uint32_t>(row[members_] << sign_bits_));
    for (std::uint32_t m = members_; m > 0; --m) row[m] += row[m - 1];
  }
}

void NumberedSums::list_combinations(ElementSpan elements) {
  const std::size_t total = count_.back() >> sign_bits_;
  combinations_.reserve(total * members_);
  std::vector<std::uint32_t> combination(members_);
  std::iota(combination.begin(), combination.end(), 0U);
  for (std::size_t rank = 0; rank < total && members_ > 0; ++rank) {
    for (const std::uint32_t index : combination) combinations_.push_back(elements.begin + index);
    count_on(combination);
  }
}

NumberedSums::List NumberedSums::sorted_sums(std::span<const double> values,
                                             std::size_t kept_of_equal) const {
  std::vector<NumberedSum> all(count_.back());
  for (std::uint32_t number = 0; number < all.size(); ++number) {
    const auto chosen = members_of(number);
    const std::uint32_t plus = plus_of(number);
    double sum = 0.0;
    for (std::uint32_t i = members_; i-- > 0;) {
      sum += (plus >> i & 1U) != 0 ? values[chosen[i]] : -values[chosen[i]];
    }
    all[number] = {sum, number};
  }
  std::sort(all.begin(), all.end());
  if (kept_of_equal != everything) keep_first_of_equal(all, kept_of_equal);
  List list;
  list.sums.reserve(all.size());
  list.numbers.reserve(all.size());
  for (const auto& [sum, number] : all) {
    list.sums.push_back(sum);
    list.numbers.push_back(number);
  }
  return list;
}

}  // namespace kov
