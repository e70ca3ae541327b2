#include "support/literal_run.h"

#include <algorithm>
#include <set>
#include <utility>

namespace kov {

namespace {

cotyp remove_point(LiteralStore& store, const Lk& key) {
  const auto point = store.find(key);
  if (point == store.end()) return {};
  const cotyp q = point->second;
  store.erase(point);
  return q;
}

void add_point(LiteralStore& store, const Lk& key, const cotyp& q) {
  const auto point = store.find(key);
  if (point == store.end()) {
    if (!is_zero(q)) store.insert({key, q});
    return;
  }
  point->second = point->second + q;
  if (is_zero(point->second)) store.erase(point);
}

void apply_barrier(LiteralStore& row, const AbsorbingBarrier& barrier, std::int32_t n) {
  if (barrier.ldest1 == 0) return;
  const cotyp q0 = remove_point(row, Lk::at(0, n));
  const cotyp q1 = remove_point(row, Lk::at(barrier.ldest1, n, barrier.k1)) * barrier.multp;
  add_point(row, Lk::at(barrier.ldest1, n), q0);
  if (!is_zero(q1)) add_point(row, Lk::at(barrier.ldest2, n, barrier.k1add), q1);
}

bool all_finite(const LiteralStore& store) {
  return std::all_of(store.begin(), store.end(), [](const auto& point) { return is_finite(point.second); });
}

bool inside_some(const Lk& key, const std::vector<KeyBox>& boxes) {
  return std::any_of(boxes.begin(), boxes.end(), [&key](const KeyBox& box) {
    for (std::size_t i = 0; i < key.coo.size(); ++i) {
      if (key.coo[i] < box.min.coo[i] || key.coo[i] > box.max.coo[i]) return false;
    }
    return true;
  });
}

void erase_rows_outside(LiteralStore& store, std::int32_t from, std::int32_t to,
                        const std::vector<KeyBox>& keep) {
  std::erase_if(store, [&](const auto& point) {
    return point.first.n() >= from && point.first.n() <= to && !inside_some(point.first, keep);
  });
}

std::int64_t bytes_of(const LiteralStore& store) { return static_cast<std::int64_t>(store.size()) * 176; }

void delete_by_mode(LiteralStore& store, const LiteralRun& run, std::int32_t i, LiteralOutcome& outcome) {
  if (run.mode == RunMode::all_but_last) {
    erase_rows_outside(store, 0, i, {});
  } else if (run.mode != RunMode::keep) {
    const std::int64_t bytes = bytes_of(store);
    erase_rows_outside(store, run.also_till_row_0 ? 0 : 1, i, run.keep);
    if (run.mode == RunMode::tracking && bytes > run.tracking_kilobytes * 1000) {
      literal_delete_smallest(store, run.percent);
      ++outcome.deletions;
    }
  }
}

}  // namespace

void literal_delete_smallest(LiteralStore& store, std::int32_t percent) {
  struct Smaller {
    bool operator()(const std::pair<ratyp, Lk>& a, const std::pair<ratyp, Lk>& b) const {
      if (a.first < b.first) return true;
      if (b.first < a.first) return false;
      return a.second.coo < b.second.coo;
    }
  };
  if (store.empty()) return;
  const std::int32_t nlast = store.rbegin()->first.n();
  std::set<std::pair<ratyp, Lk>, Smaller> candidates;
  for (const auto& [key, q] : store) {
    if (key.n() == nlast) candidates.insert({qq(q), key});
  }
  auto to_delete = static_cast<std::size_t>(static_cast<double>(candidates.size()) * percent * 0.01);
  for (auto next = candidates.begin(); to_delete > 0; ++next, --to_delete) store.erase(next->second);
}

LiteralOutcome literal_run(const Algadd& algadd, LiteralStore& store, const LiteralRun& run) {
  LiteralOutcome outcome;
  if (store.empty()) return outcome;
  const std::int32_t nlast = store.rbegin()->first.n();
  for (; outcome.steps < run.steps && !outcome.out_of_memory_bound; ++outcome.steps) {
    const std::int64_t i = nlast + outcome.steps;
    const auto row = static_cast<std::int32_t>(std::min<std::int64_t>(i, highest_int));
    LiteralStore destination;
    if (i == row) destination = literal_row(algadd, run.table, store, row);
    outcome.overflow = !all_finite(destination);
    apply_barrier(destination, run.barrier, wrapping_add(row, 1));
    outcome.overflow = outcome.overflow || !all_finite(destination);
    if (outcome.overflow) {
      std::erase_if(store, [row](const auto& point) { return point.first.n() == wrapping_add(row, 1); });
      return outcome;
    }
    for (const auto& point : destination) store.insert(point);
    delete_by_mode(store, run, row, outcome);
    outcome.out_of_memory_bound = bytes_of(store) > run.maximum_kilobytes * 1000;
  }
  return outcome;
}

}  // namespace kov
