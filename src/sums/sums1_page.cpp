#include "sums/sums1_page.h"

namespace kov {
namespace {

constexpr const char* way_to_the_menu = "Press right mouse button \nto activate the Modify Range Menu ";

bool sums_up_at_once(const cphclass& cph) { return cph.kmi("Sums1_SumUp_at_once") != 0; }

}  // namespace

SumOutcome Sums1Page::summed_up(User user) {
  const SumOutcome outcome = sums_.sum_up_and_report(lmap_, tables_.current_table(), cph_, user);
  // A summation that failed has left the display as it was.
  if (outcome != SumOutcome::failed) broken_ = outcome == SumOutcome::broken;
  return outcome;
}

void Sums1Page::sum_up(User user) {
  if (summed_up(user) == SumOutcome::displayed) hide_menu();
  changed();
}

void Sums1Page::range_changed(User user) {
  if (sums_up_at_once(cph_)) return sum_up(user);
  open_menu();
}

void Sums1Page::open_menu() {
  menu_open_ = true;
  hint_.clear();
  changed();
}

void Sums1Page::close_menu(User user) {
  summed_up(user);
  hide_menu();
  changed();
}

void Sums1Page::hide_menu() {
  menu_open_ = false;
  hint_ = sums_up_at_once(cph_) ? way_to_the_menu : "";
}

}  // namespace kov
