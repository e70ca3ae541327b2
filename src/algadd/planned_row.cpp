#include "algadd/planned_row.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "algadd/step_choice.h"
#include "algadd/tile_run.h"
#include "lattice/row_builder.h"

namespace kov {

namespace {

/// Parts of a row that threads take one after the other: enough that none waits long for another, and that
/// the display breathes often; each large enough that its beginning does not count.
constexpr std::size_t parts_per_thread = 8;
constexpr std::size_t smallest_part = 32768;
constexpr std::size_t largest_part = 400000;

std::size_t contributions_of(const StepPlan& plan) {
  std::size_t count = 0;
  for (const StepTerm& term : plan.terms) count += plan.streams[term.stream].count();
  return count;
}

std::size_t part_count(const StepPlan& plan, int threads) {
  const std::size_t contributions = contributions_of(plan);
  const std::size_t parts_for_threads = static_cast<std::size_t>(threads) * parts_per_thread;
  return std::max(std::clamp<std::size_t>(contributions / smallest_part, 1, parts_for_threads),
                  contributions / largest_part);
}

// Splits the destinations into parts of much the same number of contributions: where a term of the longest
// stream has moved as many of its points. The first bound lies below all destinations, the last above them.
std::vector<std::int64_t> part_bounds(const StepPlan& plan, std::size_t parts) {
  const auto longest =
      std::max_element(plan.terms.begin(), plan.terms.end(), [&](const auto& a, const auto& b) {
        return plan.streams[a.stream].count() < plan.streams[b.stream].count();
      });
  const SourceStream& stream = plan.streams[longest->stream];
  std::vector<std::int64_t> bounds{0};
  for (std::size_t part = 1; part < parts; ++part) {
    const std::size_t block = stream.block_count() * part / parts;
    const std::int64_t bound = static_cast<std::int64_t>(stream.block(block).first_key()) + longest->shift;
    if (bound > bounds.back()) bounds.push_back(bound);
  }
  bounds.push_back(TermPlaces::no_key);
  return bounds;
}

template <class Arithmetic>
Row make_row(const StepPlan& plan, const Arithmetic& arithmetic, WorkerPool& workers, Progress& progress) {
  const std::vector<std::int64_t> bounds = part_bounds(plan, part_count(plan, workers.threads()));
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

Row planned_row(const StepPlan& plan, WorkerPool& workers, Progress& progress) {
  if (plan.terms.empty()) return Row(plan.n, plan.frame);
  return std::visit([&](const auto& arithmetic) { return make_row(plan, arithmetic, workers, progress); },
                    choose_arithmetic(plan));
}

}  // namespace kov
