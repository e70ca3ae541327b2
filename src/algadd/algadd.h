#pragma once

#include <cstdint>
#include <vector>

#include "algadd/algadd_entry.h"

namespace kov {

inline constexpr int Algadd_TableCount = 16;
inline constexpr int Algadd_EntryCount = 256;

/// The Algadd tables: 16 tables of 256 entries, the current table index aanr, and a selection of entry
/// numbers first ... last. A default AlgaddEntry is the template of every erased entry.
class Algadd {
 public:
  Algadd();

  const AlgaddEntry& entry(int table, int i) const { return entries_[place(table, i)]; }
  void set_entry(int table, int i, const AlgaddEntry& entry) { entries_[place(table, i)] = entry; }
  void erase_entry(int table, int i) { entries_[place(table, i)] = AlgaddEntry{}; }
  void erase_table(int table);
  void copy_table(int from, int to);
  void swap_tables(int a, int b);

  /// 1 + the highest entry number whose p is not zero; 0 for an empty table.
  int used_length(int table) const;
  bool table_empty(int table) const { return used_length(table) == 0; }

  /// Removes the entries of zero p from the table; the others move down and keep their order.
  void compact_table(int table);

  std::int32_t aanr() const { return aanr_; }
  void set_aanr(int table) { aanr_ = table; }
  std::int32_t selected_first() const { return selected_first_; }
  std::int32_t selected_last() const { return selected_last_; }
  void select(std::int32_t first, std::int32_t last);

  /// Every table empty, the selection 0 ... 255, aanr 0. What the last run needed stays.
  void reset() noexcept;

  /// Seconds (whole) and steps of the last run, for the state report.
  struct LastRun {
    std::int64_t seconds = 0;
    std::int64_t steps = 0;
  };
  LastRun last_run;

 private:
  static std::size_t place(int table, int i) {
    return static_cast<std::size_t>(table) * Algadd_EntryCount + static_cast<std::size_t>(i);
  }

  std::vector<AlgaddEntry> entries_;
  std::int32_t aanr_ = 0;
  std::int32_t selected_first_ = 0;
  std::int32_t selected_last_ = Algadd_EntryCount - 1;
};

}  // namespace kov
