#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "algadd/step_plan.h"

namespace kov {

/// Points of one block that one term moves into a tile.
struct Piece {
  std::size_t term = 0;
  /// Of the term's stream.
  std::size_t block = 0;
  std::size_t from = 0;
  std::size_t count = 0;
};

/// How far each term of a plan has come in its stream, while the destinations are passed once from small keys
/// to large ones.
class TermPlaces {
 public:
  /// Above all packed keys, and with room for every distance.
  static constexpr std::int64_t no_key = std::int64_t{1} << most_step_key_bits;

  /// Before the first destination that is not less than key.
  TermPlaces(const StepPlan& plan, std::int64_t key);

  /// The smallest destination that any term still has; no_key when there is none.
  std::int64_t next_key() const;
  /// The smallest destination that some term has behind its next count points; no_key when no term has as
  /// many. Up to there each term has at most count points.
  std::int64_t key_behind(std::size_t count) const;
  /// Passes all points whose destinations are less than end; gives them in the order of the terms.
  void pass(std::int64_t end, std::vector<Piece>& pieces);

 private:
  struct Place {
    const SourceStream* stream = nullptr;
    std::int64_t shift = 0;
    std::size_t block = 0;
    std::size_t index = 0;
    /// How many points of one block were passed last.
    std::size_t passed = 0;

    bool at_end() const { return block == stream->block_count(); }
    std::int64_t key() const { return static_cast<std::int64_t>(stream->block(block).key(index)) + shift; }
  };

  std::vector<Place> places_;
};

}  // namespace kov
