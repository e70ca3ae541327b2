#include "algadd/algadd.h"

#include <algorithm>

namespace kov {

Algadd::Algadd() : entries_(std::size_t{Algadd_TableCount} * Algadd_EntryCount) {}

void Algadd::erase_table(int table) {
  std::fill_n(&entries_[place(table, 0)], Algadd_EntryCount, AlgaddEntry{});
}

void Algadd::copy_table(int from, int to) {
  if (from != to) std::copy_n(&entries_[place(from, 0)], Algadd_EntryCount, &entries_[place(to, 0)]);
}

void Algadd::swap_tables(int a, int b) {
  if (a == b) return;
  AlgaddEntry* const first = &entries_[place(a, 0)];
  std::swap_ranges(first, first + Algadd_EntryCount, &entries_[place(b, 0)]);
}

int Algadd::used_length(int table) const {
  int length = Algadd_EntryCount;
  while (length > 0 && entry(table, length - 1).empty()) --length;
  return length;
}

void Algadd::compact_table(int table) {
  AlgaddEntry* const first = &entries_[place(table, 0)];
  AlgaddEntry* const last = first + Algadd_EntryCount;
  std::fill(std::remove_if(first, last, [](const AlgaddEntry& entry) { return entry.empty(); }), last,
            AlgaddEntry{});
}

void Algadd::select(std::int32_t first, std::int32_t last) {
  selected_first_ = first;
  selected_last_ = last;
}

void Algadd::reset() noexcept {
  std::fill(entries_.begin(), entries_.end(), AlgaddEntry{});
  set_aanr(0);
  select(0, Algadd_EntryCount - 1);
}

}  // namespace kov
