#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kov {

/// One combination: its members as ascending indices of elements, the sign of the i-th of them (bit i of
/// plus: 1 for "+"), and how far its sum is from 1.0.
struct CombMatch {
  double difference = 0.0;
  std::vector<std::uint32_t> members;
  std::uint64_t plus = 0;

  friend bool operator==(const CombMatch&, const CombMatch&) = default;
};

/// Whether the enumeration meets a before b: index combinations are counted with the first index running
/// fastest, and the sign patterns of each like binary numbers.
bool met_before(const CombMatch& a, const CombMatch& b);

/// The nearest matches of one order, the nearest first and equally near ones as the enumeration meets them.
/// What is kept depends on the set of combinations that were offered alone, not on the order in which they
/// came.
///
/// Combinations are offered in groups of ascending numbers: every combination of a group must be met behind
/// all of the groups before it. That lets ties be settled without looking at the members.
class BestMatches {
 public:
  /// Keeps up to limit (at least 1) matches; with one_per_difference only the first met for each value of
  /// the difference.
  BestMatches(std::size_t limit, bool one_per_difference)
      : limit_(limit), one_per_difference_(one_per_difference) {}

  /// The largest difference that may still enter: infinite while there is room.
  double bound() const;
  /// Whether a combination of this group that is as far away as bound() may still enter.
  bool ties_count(std::uint64_t group) const { return !full() || kept_.back().group == group; }
  /// False only where a combination of this group with this difference would not be kept. Cheap, for
  /// before the match is made.
  bool may_enter(double difference, std::uint64_t group) const;
  void offer(CombMatch match, std::uint64_t group);

  /// True when nothing that is met later can enter any more, whatever it is: all differences are multiples
  /// of step, and the smallest ones are taken.
  bool complete(double step) const;

  /// Offers what another list has kept.
  void merge(const BestMatches& other);
  std::vector<CombMatch> matches() const;

 private:
  struct Kept {
    CombMatch match;
    std::uint64_t group = 0;
  };

  bool full() const { return kept_.size() == limit_; }
  /// Where the first match that is not nearer than difference stands.
  std::size_t place_of(double difference) const;

  std::size_t limit_;
  bool one_per_difference_;
  std::vector<Kept> kept_;
};

}  // namespace kov
