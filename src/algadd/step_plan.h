#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "algadd/algadd.h"
#include "algadd/source_stream.h"
#include "algadd/worker_pool.h"
#include "lattice/key_frame.h"
#include "numbers/cotyp.h"

namespace kov {

/// What the packed keys of a step may take, so that keys and their distances are signed numbers of 64 bits.
inline constexpr int most_step_key_bits = 62;

/// One entry as a step sees it: every point of a stream, moved by a constant distance of packed keys, feeds
/// p times its quantity into the row under construction.
struct StepTerm {
  std::size_t stream = 0;
  std::int64_t shift = 0;
  cotyp p;
};

/// All that one step adds to one row of destinations.
///
/// Contributions to one destination must be added in the order of the sources' keys, and of one source's
/// entries. Source = destination - offset, so that order is the same for every destination: rows ascending,
/// then the lexicographically larger offset first, then the smaller source lattice, then the entry's number.
/// The terms stand in it, and adding term by term is the literal order without any search for it.
struct StepPlan {
  /// The destinations' row.
  std::int32_t n = 0;
  /// Packs sources and destinations alike; at most most_step_key_bits.
  KeyFrame frame;
  std::vector<SourceStream> streams;
  std::vector<StepTerm> terms;
};

/// On what a step is planned, and what is called meanwhile, every few milliseconds.
struct StepThreads {
  WorkerPool& workers;
  std::function<void()> between;
};

/// The plans of a step from the given rows of one store, one for each row of destinations, in the order of n.
/// Nothing when keys do not pack: when a row is wide, a coordinate might wrap, or most_step_key_bits do not
/// hold all keys of a plan; AddLpairToLmap_1 must then be called point by point.
std::optional<std::vector<StepPlan>> plan_step(const Algadd& algadd, int table, int used_length,
                                               const std::vector<const Row*>& sources,
                                               const StepThreads& threads);

}  // namespace kov
