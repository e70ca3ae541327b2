#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "config/cphclass.h"
#include "interact/integer_question.h"
#include "sums/range_tables.h"

namespace kov {

// The operations of the Modify Range menu and the choice of the current table. None of them asks, and
// none of them checks that a minimum stays below its maximum: an empty range is what one may want.

/// The check boxes "Destination = Range 1" and "Destination = Range 2": which ranges a bound operation
/// writes. Every bound operation writes all 32 positions, the lattice index included.
using RangeDestinations = std::array<bool, 2>;

void set_full_range(RangeTable& table, const RangeDestinations& destinations);
void copy_min_to_max(RangeTable& table, const RangeDestinations& destinations);
void copy_max_to_min(RangeTable& table, const RangeDestinations& destinations);
/// "Copy Lattice Offset to Min" and, with a key of zeros, "Set Min to 0".
void set_min(RangeTable& table, const RangeDestinations& destinations, const Lk& min);
/// "Copy Lattice Offset to Max" and, with a key of zeros, "Set Max to 0".
void set_max(RangeTable& table, const RangeDestinations& destinations, const Lk& max);

/// Swaps the bounds of Range 1 with those of Range 2; the axes stay.
void exchange_ranges(RangeTable& table);
void set_to_default(RangeTable& table);

/// Inclusive bounds of a table index, for its question.
inline constexpr IntegerBounds range_table_bounds{0, RangeTables::TableCount - 1};

/// Makes table index (0 ... 31) current and stores it in Sums1_DefaultTableIndex.
void choose_range_table(RangeTables& tables, std::int32_t index, cphclass& cph);
/// The keys W and Q: the next and the previous table, around the ends.
void choose_next_range_table(RangeTables& tables, cphclass& cph);
void choose_previous_range_table(RangeTables& tables, cphclass& cph);
/// Copies the whole current table over table index, which becomes current as by choose_range_table.
void copy_range_table(RangeTables& tables, std::int32_t index, cphclass& cph);

// The texts of the two questions and of the button that shows the current table.

inline constexpr const char* choose_range_table_caption = "Sums1: Choose Table Nr";
inline constexpr const char* choose_range_table_prompt = "To choose Sums1 (Range) table index";
inline constexpr const char* copy_range_table_caption = "Sums1: Copy Table Nr.";
std::string copy_range_table_prompt(const RangeTables& tables);
/// "Choose new Table (curr.: 3)".
std::string choose_range_table_button(const RangeTables& tables);

}  // namespace kov
