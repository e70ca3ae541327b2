#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kov {

/// Whether the members of a sum are taken with both signs or with plus alone.
enum class Signs : bool { plus, plus_and_minus };

/// A stretch of a list of elements, end not included.
struct ElementSpan {
  std::uint32_t begin = 0;
  std::uint32_t end = 0;
};

/// All sums of a fixed number of members out of a stretch of elements, in ascending order: one half of a
/// search that meets in the middle. One sum has the number
///
///     (rank of its index combination) * 2^members + (its sign pattern)
///
/// (without the sign pattern where all signs are plus), so numbers ascend as the enumeration meets them, and
/// those made of the first t elements are those below count(t).
class NumberedSums {
 public:
  /// A sorted list; number i is that of sum i.
  struct List {
    std::vector<double> sums;
    std::vector<std::uint32_t> numbers;
  };
  /// How many of the sums that have the same value are kept: the first met ones. Only where sums are exact,
  /// so that these stand for all others; otherwise everything.
  static constexpr std::size_t everything = 0;

  /// The sums of so many members of values[begin ... end - 1], fewer than 2^31.
  NumberedSums(std::span<const double> values, std::uint32_t members, ElementSpan elements, Signs signs,
               std::size_t kept_of_equal = everything);

  /// The sums of 0, 1, ... most members, no more than there are elements. Lists are merged out of shorter
  /// ones, which takes much less time than to sort them one by one. Where sums are rounded, equal ones stand
  /// in any order.
  static std::vector<NumberedSums> of_each_size(std::span<const double> values, std::uint32_t most,
                                                ElementSpan elements, Signs signs,
                                                std::size_t kept_of_equal = everything);

  std::uint32_t members() const { return members_; }
  /// Number of sums made of the first t elements of the stretch.
  std::uint32_t count(std::uint32_t t) const { return count_[t]; }
  /// All sums that are kept.
  const List& sorted() const { return sorted_; }

  /// The members of a sum, ascending.
  std::span<const std::uint32_t> members_of(std::uint32_t number) const {
    return {combinations_.data() + std::size_t{number >> sign_bits_} * members_, members_};
  }
  /// Bit i is set where the i-th member counts with plus.
  std::uint32_t plus_of(std::uint32_t number) const {
    return sign_bits_ == 0 ? (std::uint32_t{1} << members_) - 1
                           : number & ((std::uint32_t{1} << sign_bits_) - 1);
  }

 private:
  /// Without sums so far.
  NumberedSums(std::uint32_t members, ElementSpan elements, Signs signs);

  void count_combinations(std::uint32_t elements);
  void list_combinations(ElementSpan elements);
  List sorted_sums(std::span<const double> values, std::size_t kept_of_equal) const;

  std::uint32_t members_;
  /// members_, or 0 where all signs are plus.
  std::uint32_t sign_bits_;
  std::vector<std::uint32_t> count_;
  /// The index combinations, one behind the other, as the enumeration meets them.
  std::vector<std::uint32_t> combinations_;
  List sorted_;
};

}  // namespace kov
