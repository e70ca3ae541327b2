#include "algadd/planned_row.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "algadd/step_choice.h"
#include "algadd/tile_run.h"
#include "lattice/row_builder.h"

namespace kov {

namespace {

constexpr std::size_t parts_per_thread = 8;

std::size_t contributions_of(const StepPlan& plan) {
  std::size_t count = 0;
  for (const StepTerm& term : plan.terms) count += plan.streams[term.stream].count();
  return count;
}

/// Where a term brings so many further contributions.
struct Arrival {
  std::int64_t key;
  std::size_t contributions;
};

// By ascending destination: the points of each term in runs of at most so many, within blocks.
std::vector<Arrival> arrivals_of(const StepPlan& plan, std::size_t most_points) {
  std::vector<Arrival> arrivals;
  for (const StepTerm& term : plan.terms) {
    const SourceStream& stream = plan.streams[term.stream];
    for (std::size_t b = 0; b < stream.block_count(); ++b) {
      const Block& block = stream.block(b);
      for (std::size_t i = 0; i < block.size(); i += most_points) {
        const std::int64_t key = static_cast<std::int64_t>(block.key(i)) + term.shift;
        arrivals.push_back({key, std::min(most_points, block.size() - i)});
      }
    }
  }
  std::sort(arrivals.begin(), arrivals.end(),
            [](const Arrival& a, const Arrival& b) { return a.key < b.key; });
  return arrivals;
}

// Splits the destinations into parts of much the same number of contributions. The first bound lies below all
// destinations, the last above them.
std::vector<std::int64_t> part_bounds(const StepPlan& plan, int threads, PartSize size) {
  const std::size_t contributions = contributions_of(plan);
  const std::size_t parts_for_threads = static_cast<std::size_t>(threads) * parts_per_thread;
  const std::size_t parts =
      std::max(std::clamp<std::size_t>(contributions / size.smallest, 1, parts_for_threads),
               contributions / size.largest);
  std::vector<std::int64_t> bounds{0};
  if (parts > 1) {
    const std::size_t part = contributions / parts;
    std::size_t arrived = 0;
    for (const Arrival& arrival : arrivals_of(plan, std::clamp<std::size_t>(part / 4, 1, block_capacity))) {
      if (arrived >= part && arrival.key > bounds.back()) {
        bounds.push_back(arrival.key);
        arrived = 0;
      }
      arrived += arrival.contributions;
    }
  }
  bounds.push_back(TermPlaces::no_key);
  return bounds;
}

template <class Arithmetic>
Row make_row(const StepPlan& plan, const Arithmetic& arithmetic, WorkerPool& workers, Progress& progress,
             PartSize size) {
  const std::vector<std::int64_t> bounds = part_bounds(plan, workers.threads(), size);
  std::vector<std::vector<BoundedBlock>> blocks(bounds.size() - 1);
  const auto breathe = [&] { progress.breathe(); };
  StepSources<Arithmetic> sources(plan, arithmetic);
  workers.run(
      sources.block_count(), [&](std::size_t block, std::size_t) { sources.prepare(block); }, breathe);
  std::vector<TileRoom<Arithmetic>> rooms(static_cast<std::size_t>(workers.threads()));
  workers.run(
      blocks.size(),
      [&](std::size_t part, std::size_t thread) {
        TileRun<Arithmetic>(plan, arithmetic, sources, rooms[thread], blocks[part])
            .run(bounds[part], bounds[part + 1]);
      },
      breathe);
  RowBuilder row(plan.n, plan.frame);
  for (std::vector<BoundedBlock>& part : blocks) {
    for (BoundedBlock& made : part) row.append(std::move(made.block), made.box);
  }
  return row.finish();
}

}  // namespace

Row planned_row(const StepPlan& plan, WorkerPool& workers, Progress& progress, PartSize size) {
  if (plan.terms.empty()) return Row(plan.n, plan.frame);
  return std::visit(
      [&](const auto& arithmetic) { return make_row(plan, arithmetic, workers, progress, size); },
      choose_arithmetic(plan));
}

}  // namespace kov
