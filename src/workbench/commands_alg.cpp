#include <array>

#include "algadd/algadd_run.h"
#include "algadd/algadd_texts.h"
#include "lattice/lattice_status.h"
#include "lattice/row_edits.h"
#include "text/integers.h"
#include "workbench/choose_table.h"
#include "workbench/command_groups.h"

namespace kov {
namespace {

void run(Workbench& workbench, User user, const RunRequest& request) {
  Document& document = workbench.document;
  if (perform_algadd(document.algadd, document.lmap, document.cph, workbench.current_ranges(), request,
                     user)) {
    workbench.show_status(user.progress);
  }
}

template <int table>
void start_table(Workbench& workbench, User user) {
  run(workbench, user, {.table = table, .mode = RunMode::keep, .intro = {}});
}

template <int table>
bool table_filled(const Workbench& workbench) {
  return !workbench.document.algadd.table_empty(table);
}

bool current_table_filled(const Workbench& workbench) {
  const Algadd& algadd = workbench.document.algadd;
  return !algadd.table_empty(algadd.aanr());
}

/// A run of the current table that asks for its steps.
RunRequest request(const Workbench& workbench, RunMode mode, std::string intro = {}) {
  return {.table = workbench.document.algadd.aanr(), .mode = mode, .intro = std::move(intro)};
}

/// A run of the current table by the default number of steps.
void run_default_steps(Workbench& workbench, User user) {
  RunRequest steps = request(workbench, RunMode::keep);
  steps.steps = workbench.document.cph.kmi("Algadd_DefaultStepCount");
  run(workbench, user, steps);
}

void start_current(Workbench& workbench, User user) {
  run(workbench, user, request(workbench, RunMode::keep));
}

std::string start_current_caption(const Workbench& workbench) {
  return "Start Algadd " + int_text(workbench.document.algadd.aanr());
}

std::string change_caption(const Workbench& workbench) {
  return change_aanr_caption(workbench.document.algadd);
}

void delete_and_do(Workbench& workbench, User user) {
  DeleteRows(workbench.document.lmap, 1, highest_int);
  workbench.show_status(user.progress);
  run_default_steps(workbench, user);
}

std::string delete_and_do_caption(const Workbench& workbench) {
  return del_and_do_caption(workbench.document.cph);
}

void delete_after_first_and_do(Workbench& workbench, User user) {
  Lmap& lmap = workbench.document.lmap;
  if (lmap.empty()) {
    user.messages.information(lattices_are_empty);
    return;
  }
  const std::int32_t first = lmap.nfirst();
  if (first < highest_int) DeleteRows(lmap, first + 1, highest_int);
  workbench.show_status(user.progress);
  run_default_steps(workbench, user);
}

std::string delete_after_first_caption(const Workbench& workbench) {
  return del_after_first_caption(workbench.document.lmap, workbench.document.cph);
}

void start_deleting(Workbench& workbench, User user) {
  run(workbench, user, request(workbench, RunMode::all_but_last, all_but_last_intro));
}

void start_deleting_outside(Workbench& workbench, User user) {
  run(workbench, user, request(workbench, RunMode::outside_ranges, outside_ranges_intro));
}

void start_tracking(Workbench& workbench, User user) {
  run(workbench, user, request(workbench, RunMode::tracking, tracking_intro(workbench.document.cph)));
}

// clang-format off
constexpr std::array<Command, 10> alg_rows{{
    {"Alg", "Start Algadd 0",                 "",       start_table<0>,            table_filled<0>},
    {"Alg", "Start Algadd 1",                 "",       start_table<1>,            table_filled<1>},
    {"Alg", "Start Algadd 2",                 "",       start_table<2>,            table_filled<2>},
    {"Alg", "Change Algadd Nr=",              "",       choose_algadd_table,       nullptr,              change_caption},
    {"Alg", "Start Algadd ",                  "",       start_current,             current_table_filled, start_current_caption},
    {"Alg", "DelAndDo Algadd Steps",          "Ctrl+A", delete_and_do,             current_table_filled, delete_and_do_caption},
    {"Alg", "Del after nfirst and do Algadd", "",       delete_after_first_and_do, current_table_filled, delete_after_first_caption},
    {"Alg", "Algadd with del",                "",       start_deleting,            current_table_filled},
    {"Alg", "AA del outside S1",              "",       start_deleting_outside,    current_table_filled},
    {"Alg", "AA Tracking Mode",               "",       start_tracking,            current_table_filled},
}};
// clang-format on

}  // namespace

std::span<const Command> alg_commands() { return alg_rows; }

}  // namespace kov
