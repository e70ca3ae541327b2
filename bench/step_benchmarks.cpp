#include <benchmark/benchmark.h>

#include <bit>
#include <limits>
#include <stdexcept>

#include "algadd/row_step.h"
#include "bench/benchmarks.h"
#include "bench/flint_product.h"
#include "bench/heap_bytes.h"
#include "bench/silent_user.h"
#include "bench/stopwatch.h"
#include "bench/workloads.h"
#include "support/literal_step.h"

namespace kov {
namespace {

constexpr int table = 0;

LiteralStore literal_copy(const Lmap& row) {
  LiteralStore copy;
  for (auto point = row.begin(); point != row.end(); ++point) {
    copy.emplace_hint(copy.end(), point.key(), point.quantity());
  }
  return copy;
}

bool same_bits(const ratyp& a, const ratyp& b) {
  if (a.exact() != b.exact()) return false;
  if (a.exact()) return a.nu() == b.nu() && a.de() == b.de();
  return std::bit_cast<std::uint64_t>(a.fl()) == std::bit_cast<std::uint64_t>(b.fl());
}

bool same_bits(const Lmap& row, const LiteralStore& literal) {
  if (row.count() != literal.size()) return false;
  auto point = row.begin();
  for (const auto& [key, q] : literal) {
    if (point.key() != key || !same_bits(point.quantity().re, q.re) ||
        !same_bits(point.quantity().im, q.im)) {
      return false;
    }
    ++point;
  }
  return true;
}

std::size_t stored_bytes(const Lmap& store) {
  std::size_t bytes = 0;
  for (const Row& row : store.rows()) {
    for (std::size_t i = 0; i < row.block_count(); ++i) bytes += row.block(i).bytes();
  }
  return bytes;
}

/// The step of one workload with so many threads.
class EngineStep {
 public:
  EngineStep(const Workload& workload, int threads) : workload_(workload), workers_(threads) {}

  Lmap row() {
    const Algadd& algadd = workload_.algadd;
    return RowStep(workers_).destinations(algadd, table, algadd.used_length(table), workload_.row,
                                          workload_.row.nlast(), user_.progress());
  }
  /// Takes the time, which counts when it is the least so far.
  void time() {
    Lmap made;
    const auto step = [&] { made = row(); };
    seconds_ = std::min(seconds_, workers_.threads() == 1 ? processor_seconds_of(step) : seconds_of(step));
  }
  double seconds() const { return seconds_; }

 private:
  const Workload& workload_;
  SilentUser user_;
  WorkerPool workers_;
  double seconds_ = std::numeric_limits<double>::infinity();
};

/// How often or how long each is run; the least time counts.
struct Repeats {
  int literal;
  int flint;
  double engine_seconds;

  static Repeats of(Scale scale) {
    return scale == Scale::full ? Repeats{.literal = 2, .flint = 3, .engine_seconds = 3.0}
                                : Repeats{.literal = 1, .flint = 1, .engine_seconds = 0.0};
  }
};

double ns_per(const Workload& workload, double seconds) {
  return 1e9 * seconds / static_cast<double>(workload.contributions());
}

// The literal reading, bounded to the used entries as the engine is. The engine must make its row in every
// bit.
void measure_literal(const Shape& shape, int repeats, StepFigures& figures) {
  const Workload workload = shape.make(shape.literal_size);
  const LiteralStore store = literal_copy(workload.row);
  double best = std::numeric_limits<double>::infinity();
  LiteralStore row;
  for (int i = 0; i < repeats; ++i) {
    row.clear();
    best = std::min(best, processor_seconds_of([&] {
                      row = literal_row(workload.algadd, table, store, workload.row.nlast(),
                                        workload.algadd.used_length(table));
                    }));
  }
  if (!same_bits(EngineStep(workload, 2).row(), row)) {
    throw std::runtime_error(shape.name + ": the step made another row");
  }
  figures.literal_points = store.size();
  figures.literal = ns_per(workload, best);
}

void measure_memory(const Workload& workload, EngineStep& step, StepFigures& figures) {
  const std::size_t before = heap_bytes();
  const Lmap row = step.row();
  figures.bytes_per_point = static_cast<double>(heap_bytes() - before) / static_cast<double>(row.count());
  const auto contributions = static_cast<double>(workload.contributions());
  figures.read_bytes = static_cast<double>(stored_bytes(workload.row)) / contributions;
  figures.written_bytes = static_cast<double>(stored_bytes(row)) / contributions;
}

// One thread and two by turns, so that neither has the quieter machine.
void measure_engine(const Workload& workload, double seconds, StepFigures& figures) {
  EngineStep one(workload, 1);
  EngineStep two(workload, 2);
  const double taken = seconds_of([&] {
    one.time();
    two.time();
  });
  for (double left = seconds - taken; left > 0.0; left -= one.seconds() + two.seconds()) {
    one.time();
    two.time();
  }
  figures.one_thread = ns_per(workload, one.seconds());
  figures.two_threads = ns_per(workload, two.seconds());
  measure_memory(workload, two, figures);
}

void measure_flint(const Workload& workload, int repeats, StepFigures& figures) {
  const auto product = flint_product(workload, repeats);
  if (!product) return;
  if (product->terms != EngineStep(workload, 2).row().count()) {
    throw std::runtime_error(figures.name + ": the product has another number of terms");
  }
  figures.flint = ns_per(workload, product->seconds);
}

StepFigures measure_step(const Shape& shape, Scale scale) {
  const Repeats repeats = Repeats::of(scale);
  StepFigures figures{.name = shape.name};
  measure_literal(shape, repeats.literal, figures);
  const Workload workload = shape.make(shape.size);
  figures.points = workload.row.count();
  measure_engine(workload, repeats.engine_seconds, figures);
  measure_flint(workload, repeats.flint, figures);
  return figures;
}

}  // namespace

void register_step_benchmarks(Scale scale, StepTable& steps) {
  for (const Shape& shape : step_shapes(scale)) {
    benchmark::RegisterBenchmark(("step: " + shape.name).c_str(), [shape, scale,
                                                                   &steps](benchmark::State& state) {
      for ([[maybe_unused]] auto iteration : state) steps.add(measure_step(shape, scale));
    })->Iterations(1);
  }
}

}  // namespace kov
