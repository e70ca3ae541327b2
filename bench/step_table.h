#pragma once

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "bench/memory_bandwidth.h"

namespace kov {

/// What was measured of one step; times in ns a contribution, which is a source point and an entry that
/// matches it. Those of one thread are its processor's, those of two threads the clock's.
struct StepFigures {
  std::string name;
  std::size_t points = 0;
  /// Of the row that the literal reading was measured on.
  std::size_t literal_points = 0;
  double literal = 0.0;
  double one_thread = 0.0;
  double two_threads = 0.0;
  std::optional<double> flint = {};
  /// Of the heap, for each point of the new row.
  double bytes_per_point = 0.0;
  /// Bytes of the row that is read and of the row that is written, for each contribution.
  double read_bytes = 0.0;
  double written_bytes = 0.0;
};

/// The steps side by side: what they cost literally, with the engine and with FLINT, the ratios, and how far
/// from the memory's bandwidth they are.
class StepTable {
 public:
  void add(const StepFigures& figures) { rows_.push_back(figures); }
  bool empty() const { return rows_.empty(); }
  void print(std::ostream& out, const MemoryBandwidth& bandwidth) const;

 private:
  std::vector<StepFigures> rows_;
};

}  // namespace kov
