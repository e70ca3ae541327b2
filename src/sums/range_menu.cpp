#include "sums/range_menu.h"

#include <utility>

#include "text/integers.h"

namespace kov {
namespace {

template <class Operation>
void for_destinations(RangeTable& table, const RangeDestinations& destinations, const Operation& operation) {
  for (std::size_t range = 0; range < destinations.size(); ++range) {
    if (destinations[range]) operation(table.range[range]);
  }
}

}  // namespace

void set_full_range(RangeTable& table, const RangeDestinations& destinations) {
  set_min(table, destinations, Lk::filled(lowest_int));
  set_max(table, destinations, Lk::filled(highest_int));
}

void copy_min_to_max(RangeTable& table, const RangeDestinations& destinations) {
  for_destinations(table, destinations, [](KeyBox& box) { box.max = box.min; });
}

void copy_max_to_min(RangeTable& table, const RangeDestinations& destinations) {
  for_destinations(table, destinations, [](KeyBox& box) { box.min = box.max; });
}

void set_min(RangeTable& table, const RangeDestinations& destinations, const Lk& min) {
  for_destinations(table, destinations, [&min](KeyBox& box) { box.min = min; });
}

void set_max(RangeTable& table, const RangeDestinations& destinations, const Lk& max) {
  for_destinations(table, destinations, [&max](KeyBox& box) { box.max = max; });
}

void exchange_ranges(RangeTable& table) { std::swap(table.range[0], table.range[1]); }

void set_to_default(RangeTable& table) { table = RangeTable{}; }

void choose_range_table(RangeTables& tables, std::int32_t index, cphclass& cph) {
  tables.choose(index);
  cph.setkmi_1("Sums1_DefaultTableIndex", index);
}

void choose_next_range_table(RangeTables& tables, cphclass& cph) {
  choose_range_table(tables, (tables.current_index() + 1) % RangeTables::TableCount, cph);
}

void choose_previous_range_table(RangeTables& tables, cphclass& cph) {
  constexpr int one_back = RangeTables::TableCount - 1;
  choose_range_table(tables, (tables.current_index() + one_back) % RangeTables::TableCount, cph);
}

void copy_range_table(RangeTables& tables, std::int32_t index, cphclass& cph) {
  tables.table(index) = tables.current_table();
  choose_range_table(tables, index, cph);
}

std::string copy_range_table_prompt(const RangeTables& tables) {
  return "To copy Sums1 table " + int_text(tables.current_index()) + " to table with index i";
}

std::string choose_range_table_button(const RangeTables& tables) {
  return "Choose new Table (curr.: " + int_text(tables.current_index()) + ")";
}

}  // namespace kov
