#include "support/literal_combinations.h"

#include <algorithm>
#include <cmath>

namespace kov {
namespace {

class LiteralList {
 public:
  explicit LiteralList(const CombRules& rules) : rules_(rules) {}

  /// Whether a sum with this difference, met now, is among the nearest.
  bool wants(double difference) const {
    if (matches.size() == rules_.nearest && difference >= matches.back().difference) return false;
    const auto as_near = [difference](const CombMatch& match) { return match.difference == difference; };
    return !rules_.one_per_difference || std::none_of(matches.begin(), matches.end(), as_near);
  }

  void put(const CombMatch& match) {
    if (matches.size() == rules_.nearest) matches.pop_back();
    std::size_t place = matches.size();
    while (place > 0 && matches[place - 1].difference > match.difference) --place;
    matches.insert(matches.begin() + static_cast<std::ptrdiff_t>(place), match);
  }

  std::vector<CombMatch> matches;

 private:
  const CombRules& rules_;
};

/// One order, its index array and its sign array.
class Enumeration {
 public:
  Enumeration(std::span<const CombElement> elements, std::size_t order, const CombRules& rules)
      : rules_(rules), index_(order + 1), sign_(order), sums_(rules), squares_(rules) {
    for (const CombElement& element : elements) {
      value_.push_back(element.re);
      square_.push_back(element.square);
    }
    for (std::size_t i = 0; i < order; ++i) index_[i] = static_cast<std::uint32_t>(i);
    index_[order] = static_cast<std::uint32_t>(elements.size());
  }

  OrderResult run(const OrderPoll& poll) {
    OrderResult result;
    do {
      if (rules_.squares) test_squares();
      test_sign_patterns();
      result.stopped = !poll(tested_);
    } while (!result.stopped && next_index_combination());
    result.sums = sums_.matches;
    result.squares = squares_.matches;
    result.tested = tested_;
    return result;
  }

 private:
  bool next_index_combination() {
    for (std::size_t i = 0; i < sign_.size(); ++i) {
      if (index_[i] + 1 < index_[i + 1]) {
        ++index_[i];
        for (std::size_t below = 0; below < i; ++below) index_[below] = static_cast<std::uint32_t>(below);
        return true;
      }
    }
    return false;
  }

  bool next_sign_pattern() {
    for (double& sign : sign_) {
      sign = -sign;
      if (sign > 0.0) return true;
    }
    return false;
  }

  void test_sign_patterns() {
    std::fill(sign_.begin(), sign_.end(), -1.0);
    do {
      double sum = 0.0;
      for (std::size_t i = sign_.size(); i-- > 0;) sum += sign_[i] * value_[index_[i]];
      ++tested_;
      const double difference = std::fabs(sum - 1.0);
      if (sums_.wants(difference)) sums_.put(match(difference));
    } while (next_sign_pattern());
  }

  void test_squares() {
    std::fill(sign_.begin(), sign_.end(), 1.0);
    double sum = 0.0;
    for (std::size_t i = sign_.size(); i-- > 0;) sum += square_[index_[i]];
    const double difference = std::fabs(sum - 1.0);
    if (squares_.wants(difference)) squares_.put(match(difference));
  }

  CombMatch match(double difference) const {
    CombMatch result{.difference = difference, .members = {index_.begin(), index_.end() - 1}, .plus = 0};
    for (std::size_t i = 0; i < sign_.size(); ++i) {
      if (sign_[i] > 0.0) result.plus |= std::uint64_t{1} << i;
    }
    return result;
  }

  const CombRules& rules_;
  std::vector<double> value_;
  std::vector<double> square_;
  std::vector<std::uint32_t> index_;
  std::vector<double> sign_;
  LiteralList sums_;
  LiteralList squares_;
  double tested_ = 0.0;
};

}  // namespace

OrderResult literal_search_order(std::span<const CombElement> elements, int order, const CombRules& rules,
                                 const OrderPoll& poll) {
  return Enumeration(elements, static_cast<std::size_t>(order), rules).run(poll);
}

}  // namespace kov
