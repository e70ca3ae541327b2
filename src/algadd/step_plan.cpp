#include "algadd/step_plan.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

#include "text/integers.h"

namespace kov {

namespace {

/// Steps that a new frame leaves room for, at least.
constexpr std::int64_t steps_of_slack = 32;

/// An entry that has points to read, and the row that holds them.
struct ActiveEntry {
  const Row* row = nullptr;
  std::size_t row_number = 0;
  int number = 0;
  const AlgaddEntry* entry = nullptr;

  std::int32_t destination_n() const { return wrapping_add(row->n(), entry->offset.n()); }
};

bool may_hold(const Row& row, std::int32_t l) { return row.box().min.l() <= l && l <= row.box().max.l(); }

// Grows box by what the entry makes of the row; false when a coordinate might wrap.
bool add_destinations(KeyBox& box, const ActiveEntry& active) {
  for (std::size_t i = 1; i < l_position; ++i) {
    const std::int64_t offset = active.entry->offset.coo[i];
    const std::int64_t low = active.row->box().min.coo[i] + offset;
    const std::int64_t high = active.row->box().max.coo[i] + offset;
    if (low < lowest_int || high > highest_int) return false;
    box.min.coo[i] = std::min(box.min.coo[i], static_cast<std::int32_t>(low));
    box.max.coo[i] = std::max(box.max.coo[i], static_cast<std::int32_t>(high));
  }
  box.min.coo[l_position] = std::min(box.min.l(), active.entry->ldest);
  box.max.coo[l_position] = std::max(box.max.l(), active.entry->ldest);
  return true;
}

// The keys of all sources and destinations of a plan, with room for further steps along the offsets.
KeyBox with_slack(KeyBox box, const std::vector<ActiveEntry>& entries) {
  for (std::size_t i = 1; i < l_position; ++i) {
    std::int64_t reach = 0;
    for (const ActiveEntry& active : entries) {
      reach = std::max(reach, std::abs(std::int64_t{active.entry->offset.coo[i]}));
    }
    const std::int64_t side = std::int64_t{box.max.coo[i]} - box.min.coo[i];
    const std::int64_t slack = reach == 0 ? 0 : std::max(steps_of_slack * reach, side / 16);
    box.min.coo[i] = static_cast<std::int32_t>(std::max<std::int64_t>(box.min.coo[i] - slack, lowest_int));
    box.max.coo[i] = static_cast<std::int32_t>(std::min<std::int64_t>(box.max.coo[i] + slack, highest_int));
  }
  return box;
}

std::optional<KeyFrame> fitting_frame(const KeyBox& box) {
  std::optional<KeyFrame> frame = KeyFrame::for_box(box);
  if (frame && frame->total_bits() > most_step_key_bits) frame.reset();
  return frame;
}

// A source's own frame saves packing its keys anew.
std::optional<KeyFrame> step_frame(const KeyBox& keys, const std::vector<ActiveEntry>& entries) {
  const KeyFrame& own = entries.front().row->frame();
  if (own.total_bits() <= most_step_key_bits && own.covers(keys)) return own;
  if (std::optional<KeyFrame> roomy = fitting_frame(with_slack(keys, entries))) return roomy;
  return fitting_frame(keys);
}

// The order of contributions to one destination.
bool comes_before(const ActiveEntry& a, const ActiveEntry& b) {
  if (a.row_number != b.row_number) return a.row_number < b.row_number;
  for (std::size_t i = 1; i < l_position; ++i) {
    const std::int32_t x = a.entry->offset.coo[i];
    const std::int32_t y = b.entry->offset.coo[i];
    if (x != y) return x > y;
  }
  return std::tuple(a.entry->source_l(), a.number) < std::tuple(b.entry->source_l(), b.number);
}

/// A source row's number and a lattice: what one stream is made of.
using StreamKey = std::pair<std::size_t, std::int32_t>;

StreamKey stream_key(const ActiveEntry& active) { return {active.row_number, active.entry->source_l()}; }

// The streams that the entries read, in the order of their keys.
std::map<StreamKey, SourceStream> streams_of(const std::vector<ActiveEntry>& entries, const KeyFrame& frame,
                                             const StepThreads& threads) {
  std::map<std::size_t, const Row*> rows;
  std::map<std::size_t, std::set<std::int32_t>> lattices;
  for (const ActiveEntry& active : entries) {
    rows[active.row_number] = active.row;
    lattices[active.row_number].insert(active.entry->source_l());
  }
  std::map<StreamKey, SourceStream> streams;
  for (const auto& [number, row] : rows) {
    const std::vector<std::int32_t> wanted(lattices[number].begin(), lattices[number].end());
    std::vector<SourceStream> made = source_streams(*row, wanted, frame, threads.workers, threads.between);
    for (std::size_t i = 0; i < made.size(); ++i)
      streams.emplace(StreamKey(number, wanted[i]), std::move(made[i]));
  }
  return streams;
}

// The lattice index takes the lowest bits; the distance of two of them may not fit in 32.
std::int64_t distance(const KeyFrame& frame, const AlgaddEntry& entry) {
  Lk offset = entry.offset;
  offset.coo[l_position] = 0;
  return static_cast<std::int64_t>(frame.shift(offset)) + entry.ldest - entry.source_l();
}

std::optional<StepPlan> plan_row(std::int32_t n, std::vector<ActiveEntry> entries,
                                 const StepThreads& threads) {
  KeyBox destinations{Lk::filled(highest_int), Lk::filled(lowest_int)};
  destinations.min.coo[0] = n;
  destinations.max.coo[0] = n;
  for (const ActiveEntry& active : entries) {
    if (!add_destinations(destinations, active)) return std::nullopt;
  }
  KeyBox keys = destinations;
  for (const ActiveEntry& active : entries) keys.include(active.row->box());
  const std::optional<KeyFrame> frame = step_frame(keys, entries);
  if (!frame) return std::nullopt;

  StepPlan plan{.n = n, .frame = *frame, .streams = {}, .terms = {}};
  std::sort(entries.begin(), entries.end(), comes_before);
  std::map<StreamKey, std::size_t> numbers;
  for (auto& [key, stream] : streams_of(entries, *frame, threads)) {
    if (stream.count() == 0) continue;
    numbers[key] = plan.streams.size();
    plan.streams.push_back(std::move(stream));
  }
  for (const ActiveEntry& active : entries) {
    const auto stream = numbers.find(stream_key(active));
    if (stream == numbers.end()) continue;
    plan.terms.push_back({stream->second, distance(*frame, *active.entry), active.entry->p});
  }
  return plan;
}

}  // namespace

std::optional<std::vector<StepPlan>> plan_step(const Algadd& algadd, int table, int used_length,
                                               const std::vector<const Row*>& sources,
                                               const StepThreads& threads) {
  std::map<std::int32_t, std::vector<ActiveEntry>> rows;
  for (std::size_t row = 0; row < sources.size(); ++row) {
    if (!sources[row]->packed()) return std::nullopt;
    for (int e = 0; e < used_length; ++e) {
      const AlgaddEntry& entry = algadd.entry(table, e);
      if (entry.empty() || !may_hold(*sources[row], entry.source_l())) continue;
      const ActiveEntry active{sources[row], row, e, &entry};
      rows[active.destination_n()].push_back(active);
    }
  }
  std::vector<StepPlan> plans;
  for (auto& [n, entries] : rows) {
    std::optional<StepPlan> plan = plan_row(n, std::move(entries), threads);
    if (!plan) return std::nullopt;
    plans.push_back(std::move(*plan));
  }
  return plans;
}

}  // namespace kov
