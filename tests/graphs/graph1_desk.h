#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "graphs/calc_gc.h"
#include "support/recording_messages.h"
#include "support/recording_progress.h"

namespace kov {

/// Curves by their index in G1Checks.
enum G1CurveIndex : std::size_t {
  cb0qre,
  cb0qim,
  cb0qq,
  cb0qa,
  cb0cntAt,
  cb1qre,
  cb1qim,
  cb1qq,
  cb1qa,
  cb1cntAt
};

inline G1Checks checks(std::initializer_list<std::size_t> indices) {
  G1Checks result{};
  for (const std::size_t index : indices) result[index] = true;
  return result;
}

/// What Graph1 is calculated from, and what it reports. Range 1 is the line of k1 in lattice 0 and step 0,
/// Range 2 that of lattice 1.
struct Graph1Desk {
  Graph1Desk() {
    cph.InitPrgPar(WindowFacts{});
    table.range[1] = table.range[0];
    table.range[1].min.coo[l_position] = 1;
    table.range[1].max.coo[l_position] = 1;
  }

  RecordingMessages messages;
  RecordingProgress progress;
  cphclass cph{messages};
  Lmap lmap;
  RangeTable table;
  G1Checks checked = checks({cb0qre});
  G1Par par;

  /// A point at k1 in the lattice of Range 1 or, with range 1, in that of Range 2.
  void set(std::int32_t k1, const cotyp& q, std::int32_t range = 0) { lmap.set(Lk::at(range, 0, k1), q); }

  G1Outcome calculate(int width = 100, int height = 50) {
    return calculate_and_report({lmap, table, cph, checked, width, height}, par, messages, progress);
  }

  /// The columns of a curve that are not zero, as "column:value" in their order.
  std::string columns(std::size_t curve) const;
};

}  // namespace kov
