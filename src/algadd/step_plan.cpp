#include "algadd/step_plan.h"

#include <algorithm>
#include <map>
#include <tuple>

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

// Collects the streams as terms ask for them.
class StreamTable {
 public:
  explicit StreamTable(StepPlan& plan) : plan_(plan) {}

  std::size_t stream(const ActiveEntry& active) {
    const auto [place, is_new] =
        numbers_.try_emplace({active.row_number, active.entry->source_l()}, plan_.streams.size());
    if (is_new) plan_.streams.emplace_back(*active.row, active.entry->source_l(), plan_.frame);
    return place->second;
  }

 private:
  StepPlan& plan_;
  std::map<std::pair<std::size_t, std::int32_t>, std::size_t> numbers_;
};

// The lattice index takes the lowest bits; the distance of two of them may not fit in 32.
std::int64_t distance(const KeyFrame& frame, const AlgaddEntry& entry) {
  Lk offset = entry.offset;
  offset.coo[l_position] = 0;
  return static_cast<std::int64_t>(frame.shift(offset)) + entry.ldest - entry.source_l();
}

std::optional<StepPlan> plan_row(std::int32_t n, std::vector<ActiveEntry> entries) {
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
  StreamTable streams(plan);
  for (const ActiveEntry& active : entries) {
    const std::size_t stream = streams.stream(active);
    if (plan.streams[stream].count() == 0) continue;
    plan.terms.push_back({stream, distance(*frame, *active.entry), active.entry->p});
  }
  return plan;
}

}  // namespace

std::optional<std::vector<StepPlan>> plan_step(const Algadd& algadd, int table, int used_length,
                                               const std::vector<const Row*>& sources) {
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
    std::optional<StepPlan> plan = plan_row(n, std::move(entries));
    if (!plan) return std::nullopt;
    plans.push_back(std::move(*plan));
  }
  return plans;
}

}  // namespace kov
