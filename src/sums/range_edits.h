#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "sums/range_table.h"

namespace kov {

// What the keys of the range table's grid and typing into it do to a table. A range is given as 0 for
// Range 1 and 1 for Range 2, a key position as 0 ... 31.

enum class Axis { x, y };

/// Makes a key position the axis of a range. When the range's other axis holds it, the two swap, so
/// that x and y of one range never become the same by this.
void set_axis(RangeTable& table, std::size_t range, Axis axis, std::int32_t position);
/// Likewise for both ranges, as the keys X and Y do.
void set_axis_of_both(RangeTable& table, Axis axis, std::int32_t position);

enum class Bound { min, max };

/// One bound of one range at one key position.
struct BoundPlace {
  std::size_t range = 0;
  Bound bound = Bound::min;
  std::size_t position = 0;

  friend bool operator==(const BoundPlace&, const BoundPlace&) = default;
};

std::int32_t& bound_at(RangeTable& table, const BoundPlace& place);
std::int32_t bound_at(const RangeTable& table, const BoundPlace& place);

/// What became of an edit: the place that the cursor moves to, which is also where the value went when
/// one was stored, and whether the program beeps.
struct BoundEdit {
  BoundPlace cursor;
  bool stored = false;
  bool beep = false;

  friend bool operator==(const BoundEdit&, const BoundEdit&) = default;
};

/// A minimum above its maximum is stored as the maximum, a maximum below its minimum as the minimum;
/// the partner's old value is then lost, the cursor moves to it and the program beeps. So typing never
/// turns an ordered pair of bounds into an empty range.
BoundEdit type_bound(RangeTable& table, const BoundPlace& place, std::int32_t value);

/// Likewise from the text of a cell; a text that is no bound changes nothing and beeps.
BoundEdit type_bound(RangeTable& table, const BoundPlace& place, std::string_view text);

/// The keys P and M: the bound plus or minus 1, stored as if it had been typed. "+" has no successor
/// and "-" no predecessor: nothing changes, with a beep.
BoundEdit increase_bound(RangeTable& table, const BoundPlace& place);
BoundEdit decrease_bound(RangeTable& table, const BoundPlace& place);

}  // namespace kov
