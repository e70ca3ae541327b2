#include <array>

#include "interact/integer_question.h"
#include "workbench/choose_table.h"
#include "workbench/command_groups.h"

namespace kov {
namespace {

/// An operation that writes bounds of the ranges whose check box is set.
template <void (*operation)(RangeTable&, const RangeDestinations&)>
void change_bounds(Workbench& workbench, User) {
  operation(workbench.document.ranges.current_table(), workbench.range_is_destination);
  workbench.display().ranges_changed();
}

using SetBounds = void (*)(RangeTable&, const RangeDestinations&, const Lk&);

template <SetBounds operation>
void set_to_offset(Workbench& workbench, User) {
  operation(workbench.document.ranges.current_table(), workbench.range_is_destination,
            workbench.document.slice.offset());
  workbench.display().ranges_changed();
}

template <SetBounds operation>
void set_to_zero(Workbench& workbench, User) {
  operation(workbench.document.ranges.current_table(), workbench.range_is_destination, Lk{});
  workbench.display().ranges_changed();
}

template <void (*operation)(RangeTable&)>
void change_table(Workbench& workbench, User) {
  operation(workbench.document.ranges.current_table());
  workbench.display().ranges_changed();
}

std::string choose_table_caption(const Workbench& workbench) {
  return choose_range_table_button(workbench.document.ranges);
}

void ask_and_copy_range_table(Workbench& workbench, User user) {
  Document& document = workbench.document;
  const auto to =
      ask_integer(user.questions, copy_range_table_caption, copy_range_table_prompt(document.ranges),
                  document.ranges.current_index(), range_table_bounds);
  if (!to) return;
  copy_range_table(document.ranges, *to, document.cph);
  workbench.display().ranges_changed();
}

void close_range_menu(Workbench& workbench, User user) { workbench.sums1.close_menu(user); }

// clang-format off
constexpr std::array<Command, 12> sums1_rows{{
    {"Sums1", "Set full Range  (-...+)",    "", change_bounds<set_full_range>},
    {"Sums1", "Copy Min to Max",            "", change_bounds<copy_min_to_max>},
    {"Sums1", "Copy Max to Min",            "", change_bounds<copy_max_to_min>},
    {"Sums1", "Copy Lattice Offset to Max", "", set_to_offset<set_max>},
    {"Sums1", "Copy Lattice Offset to Min", "", set_to_offset<set_min>},
    {"Sums1", "Set Min to 0",               "", set_to_zero<set_min>},
    {"Sums1", "Set Max to 0",               "", set_to_zero<set_max>},
    {"Sums1", "Exchange Ranges",            "", change_table<exchange_ranges>},
    {"Sums1", "Set Table to Default",       "", change_table<set_to_default>},
    {"Sums1", "Change Table Number ",       "", choose_sums1_table, nullptr, choose_table_caption},
    {"Sums1", "Copy Table",                 "", ask_and_copy_range_table},
    {"Sums1", "Close",                      "", close_range_menu},
}};
// clang-format on

}  // namespace

std::span<const Command> sums1_commands() { return sums1_rows; }

}  // namespace kov
