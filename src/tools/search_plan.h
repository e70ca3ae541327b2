#pragma once

#include <cstdint>
#include <optional>

namespace kov {

/// How one order is searched. The members of a combination are split
///
/// - by position: the first low members are looked up among sorted sums, for all choices and signs of the
///   others; or
/// - by element: those among the first low elements meet those among the next middle elements, both as
///   sorted sums, for all choices and signs of those among the other elements, the top.
///
/// The first is quick where few of many elements are chosen, the second where about half of them are.
struct SearchPlan {
  std::uint32_t low = 0;
  /// 0 where the split is by position.
  std::uint32_t middle = 0;
  /// How many comparisons the search may take, the preparation of the sums aside.
  double comparisons = 0.0;

  bool by_element() const { return middle > 0; }
};

/// The plan of either kind that takes the least time with the memory that a search may use, for
/// combinations of order out of so many elements, 1 <= order <= elements. Nothing where every plan of this
/// kind is beyond that memory.
std::optional<SearchPlan> plan_by_position(std::int64_t elements, int order);
std::optional<SearchPlan> plan_by_element(std::int64_t elements, int order);

/// The better of both.
std::optional<SearchPlan> plan_search(std::int64_t elements, int order);

/// From how few to how many, both included.
struct MemberCounts {
  std::uint32_t fewest = 0;
  std::uint32_t most = 0;
};

/// How many of rest members can be among the middle elements, when all are among low + middle elements.
constexpr MemberCounts middle_members(std::uint32_t rest, std::uint32_t low, std::uint32_t middle) {
  return {.fewest = rest > low ? rest - low : 0, .most = rest < middle ? rest : middle};
}

}  // namespace kov
