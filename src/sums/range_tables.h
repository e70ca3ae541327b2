#pragma once

#include <array>

#include "sums/range_table.h"

namespace kov {

/// The 32 range tables, one of which is current.
class RangeTables {
 public:
  static constexpr int TableCount = 32;

  RangeTable& table(int index) { return tables_[static_cast<std::size_t>(index)]; }
  const RangeTable& table(int index) const { return tables_[static_cast<std::size_t>(index)]; }
  RangeTable& current_table() { return table(current_); }
  const RangeTable& current_table() const { return table(current_); }

  int current_index() const { return current_; }
  /// 0 ... 31.
  void choose(int index) { current_ = index; }

  /// Every table as the default table; the current index stays.
  void reset() { tables_.fill(RangeTable{}); }

 private:
  std::array<RangeTable, TableCount> tables_{};
  int current_ = 0;
};

}  // namespace kov
