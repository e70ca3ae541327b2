#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kov {

/// Whether the members of a sum are taken with both signs or with plus alone.
enum class Signs : bool { plus, plus_and_minus };

/// All sums of a fixed number of members out of the first elements of a list, in ascending order: the
/// precomputed half of a search that meets in the middle. One half sum has the number
///
///     (rank of its index combination) * 2^members + (its sign pattern)
///
/// (without the sign pattern where all signs are plus), so numbers ascend as the enumeration meets them, and
/// those made of the first t elements are those below count(t).
class HalfSums {
 public:
  /// A sorted list; number i is that of sum i.
  struct List {
    std::vector<double> sums;
    std::vector<std::uint32_t> numbers;
  };
  /// How many of the sums that have the same value are kept: the first met ones. Only where sums are exact,
  /// so that these stand for all others; otherwise everything.
  static constexpr std::size_t everything = 0;

  /// The sums of so many members of values[0 ... elements - 1], 2^21 at most.
  HalfSums(std::span<const double> values, std::uint32_t members, std::uint32_t elements, Signs signs,
           std::size_t kept_of_equal = everything);

  std::uint32_t members() const { return members_; }
  /// Number of half sums made of the first t elements.
  std::uint32_t count(std::uint32_t t) const { return count_[t]; }
  /// A list that holds at least the kept ones among the first count(t), and not many more: it is made for a
  /// number of elements, t or more.
  const List& list(std::uint32_t t) const { return lists_[list_of_[t]]; }

  /// The members of a half sum, ascending.
  std::span<const std::uint32_t> members_of(std::uint32_t number) const {
    return {combinations_.data() + std::size_t{number >> sign_bits_} * members_, members_};
  }
  /// Bit i is set where the i-th member counts with plus.
  std::uint32_t plus_of(std::uint32_t number) const {
    return sign_bits_ == 0 ? (std::uint32_t{1} << members_) - 1
                           : number & ((std::uint32_t{1} << sign_bits_) - 1);
  }

 private:
  void count_combinations(std::uint32_t elements);
  void list_combinations(std::uint32_t elements);
  List sorted_sums(std::span<const double> values, std::size_t kept_of_equal) const;
  void make_shorter_lists(std::uint32_t elements);

  std::uint32_t members_;
  /// members_, or 0 where all signs are plus.
  std::uint32_t sign_bits_;
  std::vector<std::uint32_t> count_;
  /// The index combinations, one behind the other, as the enumeration meets them.
  std::vector<std::uint32_t> combinations_;
  /// For fewer and fewer elements.
  std::vector<List> lists_;
  std::vector<std::uint8_t> list_of_;
};

}  // namespace kov
