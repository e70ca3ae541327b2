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

/// A list to which sums come in ascending order, of which it keeps the first so many of each value.
class GrowingList {
 public:
  explicit GrowingList(std::size_t kept_of_equal) : kept_(kept_of_equal) {}

  void reserve(std::size_t size) {
    list_.sums.reserve(size);
    list_.numbers.reserve(size);
  }
  void add(const NumberedSum& next) {
    equal_ = !list_.sums.empty() && list_.sums.back() == next.sum ? equal_ + 1 : 1;
    if (kept_ != NumberedSums::everything && equal_ > kept_) return;
    list_.sums.push_back(next.sum);
    list_.numbers.push_back(next.number);
  }
  NumberedSums::List take() { return std::move(list_); }

 private:
  std::size_t kept_;
  std::size_t equal_ = 0;
  NumberedSums::List list_;
};

/// Sums of one member fewer, each with one more behind its last: still in ascending order.
class Extended {
 public:
  /// The new member, with its sign, is value; rank is that of the first combination with it.
  Extended(const NumberedSums::List& list, double value, std::uint32_t rank, std::uint32_t old_sign_bits,
           std::uint32_t new_sign_bits, bool plus)
      : list_(list),
        value_(value),
        rank_(rank),
        old_sign_bits_(old_sign_bits),
        new_sign_bits_(new_sign_bits),
        plus_bit_(plus && new_sign_bits > 0 ? std::uint32_t{1} << old_sign_bits : 0) {}

  bool at_end() const { return next_ == list_.sums.size(); }
  void pop() { ++next_; }
  NumberedSum front() const {
    const std::uint32_t number = list_.numbers[next_];
    const std::uint32_t signs = number & ((std::uint32_t{1} << old_sign_bits_) - 1);
    return {.sum = list_.sums[next_] + value_,
            .number = ((rank_ + (number >> old_sign_bits_)) << new_sign_bits_) | plus_bit_ | signs};
  }

 private:
  const NumberedSums::List& list_;
  double value_;
  std::uint32_t rank_;
  std::uint32_t old_sign_bits_;
  std::uint32_t new_sign_bits_;
  std::uint32_t plus_bit_;
  std::size_t next_ = 0;
};

NumberedSums::List merged(std::span<Extended> sources, std::size_t size, std::size_t kept_of_equal) {
  GrowingList all(kept_of_equal);
  all.reserve(size);
  for (;;) {
    Extended* smallest = nullptr;
    NumberedSum sum{};
    for (Extended& source : sources) {
      if (source.at_end()) continue;
      const NumberedSum front = source.front();
      if (smallest != nullptr && !(front < sum)) continue;
      smallest = &source;
      sum = front;
    }
    if (smallest == nullptr) return all.take();
    all.add(sum);
    smallest->pop();
  }
}

}  // namespace

NumberedSums::NumberedSums(std::span<const double> values, std::uint32_t members, ElementSpan elements,
                           Signs signs, std::size_t kept_of_equal)
    : NumberedSums(members, elements, signs) {
  sorted_ = sorted_sums(values, kept_of_equal);
}

NumberedSums::NumberedSums(std::uint32_t members, ElementSpan elements, Signs signs)
    : members_(members), sign_bits_(signs == Signs::plus ? 0 : members) {
  count_combinations(elements.end - elements.begin);
  list_combinations(elements);
}

std::vector<NumberedSums> NumberedSums::of_each_size(std::span<const double> values, std::uint32_t most,
                                                     ElementSpan elements, Signs signs,
                                                     std::size_t kept_of_equal) {
  std::vector<NumberedSums> all;
  for (std::uint32_t m = 0; m <= most; ++m) all.push_back(NumberedSums(m, elements, signs));
  all.front().sorted_ = {.sums = {0.0}, .numbers = {0}};
  for (std::uint32_t t = 0; t < elements.end - elements.begin; ++t) {
    const double value = values[elements.begin + t];
    // From the most members down, so that those with one member fewer are still without this element.
    for (std::uint32_t m = std::min(t + 1, most); m > 0; --m) {
      NumberedSums& sums = all[m];
      const NumberedSums& fewer = all[m - 1];
      const std::uint32_t rank = sums.count(t) >> sums.sign_bits_;
      std::vector<Extended> sources;
      sources.emplace_back(sums.sorted_, 0.0, 0, sums.sign_bits_, sums.sign_bits_, false);
      sources.emplace_back(fewer.sorted_, value, rank, fewer.sign_bits_, sums.sign_bits_, true);
      if (signs == Signs::plus_and_minus) {
        sources.emplace_back(fewer.sorted_, -value, rank, fewer.sign_bits_, sums.sign_bits_, false);
      }
      const std::size_t size = sums.sorted_.sums.size() + (sources.size() - 1) * fewer.sorted_.sums.size();
      sums.sorted_ = merged(sources, size, kept_of_equal);
    }
  }
  return all;
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
  GrowingList list(kept_of_equal);
  if (kept_of_equal == everything) list.reserve(all.size());
  for (const NumberedSum& next : all) list.add(next);
  return list.take();
}

}  // namespace kov
