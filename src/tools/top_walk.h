#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace kov {

/// Walks over the choices of members among the last elements of a list, the top, while the other members of
/// a combination are below: all choices of feasible size, as the enumeration meets their combinations. Since
/// the last member runs slowest, that is the order of binary numbers with a digit for each element of the
/// top, and all combinations of one choice follow one another.
class TopWalk {
 public:
  struct Choice {
    /// The members among the top, ascending.
    std::vector<std::uint32_t> members;
    /// Ascends from choice to choice.
    std::uint64_t number = 0;
  };

  /// The top are the elements begin ... elements - 1, 31 at most; a choice of them leaves begin members of
  /// order below, or fewer.
  TopWalk(std::uint32_t elements, std::uint32_t order, std::uint32_t begin)
      : begin_(begin), order_(order), end_(std::uint64_t{1} << (elements - begin)) {}

  /// The next choice; nothing behind the last.
  std::optional<Choice> next();

 private:
  std::uint32_t begin_;
  std::uint32_t order_;
  std::uint64_t end_;
  std::uint64_t next_ = 0;
};

}  // namespace kov
