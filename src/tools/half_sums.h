#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "tools/numbered_sums.h"

namespace kov {

/// The sums of the first elements of a list, with shorter lists for fewer of them: what the first members of
/// a combination add, for whatever element the next member is.
class HalfSums : public NumberedSums {
 public:
  /// The sums of so many members of values[0 ... elements - 1], 2^21 at most.
  HalfSums(std::span<const double> values, std::uint32_t members, std::uint32_t elements, Signs signs,
           std::size_t kept_of_equal = everything);

  /// A list that holds at least the kept ones among the first count(t), and not many more: it is made for a
  /// number of elements, t or more.
  const List& list(std::uint32_t t) const {
    return list_of_[t] == 0 ? sorted() : shorter_[list_of_[t] - std::size_t{1}];
  }

 private:
  /// For fewer and fewer elements.
  std::vector<List> shorter_;
  /// 0 is the list of all, i is shorter_[i - 1].
  std::vector<std::uint8_t> list_of_;
};

}  // namespace kov
