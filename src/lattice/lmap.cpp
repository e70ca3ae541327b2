#include "lattice/lmap.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "lattice/merged_row.h"
#include "text/integers.h"

namespace kov {

void Lmap::swap(Lmap& other) noexcept {
  rows_.swap(other.rows_);
  std::swap(count_, other.count_);
}

void Lmap::clear() noexcept {
  rows_.clear();
  count_ = 0;
}

const Row* Lmap::row(std::int32_t n) const noexcept {
  if (rows_.empty()) return nullptr;
  const auto last = std::prev(rows_.end());  // which is asked for most
  const auto at = last->first == n ? last : rows_.find(n);
  return at == rows_.end() ? nullptr : &at->second;
}

Row* Lmap::find_row(std::int32_t n) noexcept { return const_cast<Row*>(row(n)); }

cotyp Lmap::get(const Lk& key) const noexcept {
  const Row* of_step = row(key.n());
  const auto place = of_step ? of_step->find(key) : std::nullopt;
  return place ? of_step->quantity(*place) : cotyp{};
}

bool Lmap::contains(const Lk& key) const noexcept {
  const Row* of_step = row(key.n());
  return of_step && of_step->find(key);
}

void Lmap::insert(Row* row, const Row::Spot& spot, const Lk& key, const cotyp& q) {
  if (row) {
    row->insert(spot, key, q);
  } else {
    Row alone(key.n(), KeyFrame::for_box({key, key}));
    alone.insert(key, q);
    rows_.emplace(key.n(), std::move(alone));
  }
  ++count_;
}

void Lmap::set(const Lk& key, const cotyp& q) {
  if (is_zero(q)) {
    erase(key);
  } else if (Row* row = find_row(key.n())) {
    count_ += row->set(key, q) ? 1 : 0;
  } else {
    insert(nullptr, {}, key, q);
  }
}

cotyp Lmap::add(const Lk& key, const cotyp& q) {
  Row* row = find_row(key.n());
  const Row::Spot spot = row ? row->spot(key) : Row::Spot{};
  if (!spot.taken) {
    if (!is_zero(q)) insert(row, spot, key, q);
    return q;
  }
  const cotyp sum = row->quantity(spot.place) + q;
  if (is_zero(sum)) {
    erase(key);
  } else {
    row->set(spot.place, sum);
  }
  return sum;
}

bool Lmap::insert_new(const Lk& key, const cotyp& q) {
  Row* row = find_row(key.n());
  const Row::Spot spot = row ? row->spot(key) : Row::Spot{};
  if (is_zero(q) || spot.taken) return false;
  insert(row, spot, key, q);
  return true;
}

bool Lmap::erase(const Lk& key) noexcept {
  const auto row = rows_.find(key.n());
  if (row == rows_.end()) return false;
  const auto place = row->second.find(key);
  if (!place) return false;
  row->second.erase(*place);
  --count_;
  drop_empty(row);
  return true;
}

Lmap::Cursor Lmap::lower_bound(const Lk& key) const noexcept {
  const auto row = rows_.lower_bound(key.n());
  if (row == rows_.end() || row->first != key.n()) return Cursor(row);
  const RowPlace place = row->second.lower_bound(key);
  return place == row->second.end() ? Cursor(std::next(row)) : Cursor(row, place);
}

std::size_t Lmap::count_before(Cursor at) const noexcept {
  std::size_t count = 0;
  for (auto row = rows_.begin(); row != at.row_; ++row) count += row->second.count();
  return at.row_ == rows_.end() ? count : count + at.row().count_before(at.place_);
}

Lmap::Storage::iterator Lmap::drop_empty(Storage::iterator row) noexcept {
  return row->second.empty() ? rows_.erase(row) : std::next(row);
}

Lmap::Cursor Lmap::erase(Cursor at) noexcept {
  const auto row = rows_.erase(at.row_, at.row_);  // erases nothing: an iterator that may change the row
  const RowPlace next = row->second.erase(at.place_);
  --count_;
  if (next != row->second.end()) return Cursor(row, next);
  return Cursor(drop_empty(row));
}

Lmap::Rows Lmap::rows(std::int32_t a, std::int32_t b) const noexcept {
  const auto first = rows_.lower_bound(a);
  return {RowCursor(first), RowCursor(a <= b ? rows_.upper_bound(b) : first)};
}

void Lmap::insert_row(Row&& row) {
  if (row.empty()) return;
  const std::size_t count = row.count();
  const std::int32_t n = row.n();
  rows_.emplace_hint(rows_.end(), n, std::move(row));
  count_ += count;
}

std::size_t Lmap::count_in_rows(std::int32_t a, std::int32_t b) const noexcept {
  std::size_t count = 0;
  for (const Row& row : rows(a, b)) count += row.count();
  return count;
}

std::size_t Lmap::erase_rows(std::int32_t a, std::int32_t b) noexcept {
  if (a > b) return 0;
  const std::size_t erased = count_in_rows(a, b);
  rows_.erase(rows_.lower_bound(a), rows_.upper_bound(b));
  count_ -= erased;
  return erased;
}

Lmap Lmap::copy_rows(std::int32_t a, std::int32_t b) const {
  Lmap copy;
  const Rows chosen = rows(a, b);
  copy.rows_.insert(chosen.first.row_, chosen.last.row_);
  copy.count_ = count_in_rows(a, b);
  return copy;
}

// Rows move with the memory that they have.
Lmap Lmap::extract_rows(std::int32_t a, std::int32_t b) noexcept {
  Lmap taken;
  if (a > b) return taken;
  taken.count_ = count_in_rows(a, b);
  count_ -= taken.count_;
  const auto end = rows_.upper_bound(b);
  for (auto row = rows_.lower_bound(a); row != end;) {
    taken.rows_.insert(taken.rows_.end(), rows_.extract(row++));
  }
  return taken;
}

void Lmap::merge_new(Lmap& other) {
  std::vector<Row> merged;
  for (const Row& theirs : other.rows()) {
    if (const Row* ours = row(theirs.n())) merged.push_back(merged_row(*ours, theirs));
  }
  for (Row& row : merged) {
    Row& ours = *find_row(row.n());
    count_ += row.count() - ours.count();
    other.count_ -= other.row(row.n())->count();
    ours = std::move(row);
  }
  count_ += other.count_;
  rows_.merge(other.rows_);
  other.clear();
}

// Steps stay distinct when all move by the same distance modulo 2^32.
void Lmap::shift_steps(std::int32_t delta) noexcept {
  if (delta == 0) return;
  Storage moved;
  while (!rows_.empty()) {
    auto node = rows_.extract(rows_.begin());
    node.key() = wrapping_add(node.key(), delta);
    node.mapped().move_to(node.key());
    moved.insert(moved.end(), std::move(node));
  }
  rows_.swap(moved);
}

void Lmap::take(std::vector<Columns>&& columns) noexcept {
  auto next = columns.begin();
  for (auto& [n, row] : rows_) {
    for (std::size_t block = 0; block < row.block_count(); ++block, ++next) {
      row.set_columns(block, std::move(next->re), std::move(next->im));
    }
  }
  next = columns.begin();
  if (std::none_of(columns.begin(), columns.end(), [](const Columns& block) { return block.zeros; })) return;
  keep_chosen(lowest_int, highest_int, [&next](const Row& row, std::size_t block, BlockIndices& kept) {
    const std::size_t size = row.block(block).size();
    const bool zeros = next++->zeros;
    std::size_t count = 0;
    for (std::size_t i = 0; i < size; ++i) {
      if (!zeros || !is_zero(row.quantity({block, i}))) kept[count++] = static_cast<std::uint32_t>(i);
    }
    return count;
  });
}

}  // namespace kov
