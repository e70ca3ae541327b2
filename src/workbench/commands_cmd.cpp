#include <algorithm>
#include <array>

#include "algadd/algadd_texts.h"
#include "algadd/delete_smallest.h"
#include "algadd/process_memory.h"
#include "interact/integer_question.h"
#include "lattice/row_edits.h"
#include "text/integers.h"
#include "workbench/command_groups.h"

namespace kov {
namespace {

// The presets of the dialogs are such that confirming one by mistake changes as little as possible: a count
// keeps every row, a target leaves the rows where they are, and only what deletes names the last row.

std::optional<std::int32_t> ask_a(User user, const std::string& caption, const std::string& prompt,
                                  std::int32_t preset, const IntegerBounds& bounds = {}) {
  return ask_integer(user.questions, caption, prompt, preset, bounds, 'a');
}

std::int32_t last_row(const Lmap& lmap) { return lmap.empty() ? 0 : lmap.nlast(); }

std::string last_row_text(const Lmap& lmap) { return int_text(last_row(lmap)); }

// How many rows the last ones must be to be all of them; the largest integer when there are still more.
std::int32_t row_count(const Lmap& lmap) {
  const std::int64_t count = std::int64_t{last_row(lmap)} - lmap.nfirst() + 1;
  return static_cast<std::int32_t>(std::min(count, std::int64_t{highest_int}));
}

std::optional<std::array<std::int32_t, 3>> ask_rows_and_target(Workbench& workbench, User user,
                                                               const std::string& caption,
                                                               const std::string& prompt,
                                                               std::int32_t first) {
  const std::string from = int_text(first);
  const std::string to = last_row_text(workbench.document.lmap);
  return ask_three_integers(user.questions, caption, prompt, from + "," + to + "," + from);
}

void move_all(Workbench& workbench, User user) {
  if (const auto a = ask_a(user, "Move lattice", "To move all quantities from n to n+a", 0)) {
    MoveAll(workbench.document.lmap, *a);
    workbench.show_status(user.progress);
  }
}

void move_part(Workbench& workbench, User user) {
  const auto rows = ask_rows_and_target(workbench, user, "Move lattice part",
                                        "To move quantities with a<=n<=b to c (offset=c-a)",
                                        last_row(workbench.document.lmap));
  if (!rows) return;
  const auto [a, b, c] = *rows;
  MovePart(workbench.document.lmap, a, b, c);
  workbench.show_status(user.progress);
}

void copy_part(Workbench& workbench, User user) {
  const auto rows = ask_rows_and_target(workbench, user, "Copy lattice part",
                                        "To copy quantities with a<=n<=b to c (offset=c-a)",
                                        last_row(workbench.document.lmap));
  if (!rows) return;
  const auto [a, b, c] = *rows;
  CopyPart(workbench.document.lmap, a, b, c);
  workbench.show_status(user.progress);
}

void delete_all(Workbench& workbench, User user) {
  workbench.document.lmap.clear();
  give_process_memory_back();
  workbench.document.inverted = false;
  workbench.show_status(user.progress);
}

void delete_part(Workbench& workbench, User user) {
  const std::string row = last_row_text(workbench.document.lmap);
  const auto rows = ask_two_integers(user.questions, "Delete part of lattice",
                                     "To delete all quantities with a<=n<=b", row + "," + row);
  if (!rows) return;
  const auto [a, b] = *rows;
  DeleteRows(workbench.document.lmap, a, b);
  workbench.show_status(user.progress);
}

void delete_after_0(Workbench& workbench, User user) {
  DeleteRows(workbench.document.lmap, 1, highest_int);
  workbench.show_status(user.progress);
}

void delete_all_but_last(Workbench& workbench, User user) {
  Lmap& lmap = workbench.document.lmap;
  if (lmap.empty()) return;
  const auto a = ask_a(user, "Delete all but last", "To erase all of lattice except\nits last a rows",
                       row_count(lmap), {0, highest_int});
  if (!a) return;
  DeleteAllButLast(lmap, *a);
  workbench.show_status(user.progress);
}

void delete_outside_sums1(Workbench& workbench, User user) {
  Lmap& lmap = workbench.document.lmap;
  if (lmap.empty()) return;
  const auto a = ask_a(user, "Del outside Sums1",
                       "To erase all of lattice except its part\nwithin the Ranges of current Sums1 Table"
                       "\nand except its last a rows",
                       row_count(lmap));
  if (!a) return;
  DeleteOutsideExceptLast(lmap, *a, workbench.current_ranges(), user.messages);
  workbench.show_status(user.progress);
}

void delete_last(Workbench& workbench, User user) {
  Lmap& lmap = workbench.document.lmap;
  if (lmap.empty()) return;
  DeleteRows(lmap, lmap.nlast(), lmap.nlast());
  workbench.show_status(user.progress);
}

void delete_last_outside_sums1(Workbench& workbench, User user) {
  Lmap& lmap = workbench.document.lmap;
  if (lmap.empty()) return;
  DeleteRowsOutsideRange(lmap, lmap.nlast(), lmap.nlast(), workbench.current_ranges(), user.messages);
  workbench.show_status(user.progress);
}

void delete_smallest_of_last(Workbench& workbench, User user) {
  Lmap& lmap = workbench.document.lmap;
  if (lmap.empty()) return;
  const DialogText dialog = delete_smallest_dialog(lmap);
  const std::int32_t preset = workbench.document.cph.kmi("DelSmallPercent_Default");
  const auto percent = ask_integer(user.questions, dialog.caption, dialog.prompt, preset, {0, 100});
  if (!percent) return;
  delete_smallest_of_nlast(lmap, *percent, user.progress);
  workbench.show_status(user.progress);
}

void quickly_delete_smallest(Workbench& workbench, User user) {
  delete_smallest_of_nlast(workbench.document.lmap, workbench.document.cph.kmi("DelSmallPercent_Default"),
                           user.progress);
  workbench.show_status(user.progress);
}

std::string quickly_delete_smallest_caption(const Workbench& workbench) {
  return "dto. for " + int_text(workbench.document.cph.kmi("DelSmallPercent_Default")) + " percent";
}

void choose_last_before_0(Workbench& workbench, User user) {
  Lmap& lmap = workbench.document.lmap;
  if (lmap.empty()) return;
  const auto a =
      ask_a(user, "Choose last part as past in n=0",
            "To choose last a rows, move them\nbefore inclusive n=0 and delete rest", row_count(lmap));
  if (!a) return;
  ChooseLast(lmap, *a, static_cast<std::int32_t>(1 - std::int64_t{*a}));
  workbench.show_status(user.progress);
}

void choose_last_after_0(Workbench& workbench, User user) {
  Lmap& lmap = workbench.document.lmap;
  if (lmap.empty()) return;
  const auto a =
      ask_a(user, "Choose last part as start in n=0",
            "To choose last a rows, move them\nafter inclusive n=0 and delete rest", row_count(lmap));
  if (!a) return;
  ChooseLast(lmap, *a, 0);
  workbench.show_status(user.progress);
}

void choose_last(Workbench& workbench, User user) {
  Lmap& lmap = workbench.document.lmap;
  if (lmap.empty()) return;
  const auto answer = ask_two_integers(user.questions, "Choose last part of lattice",
                                       "Choose last a rows: To move quantities with\n"
                                       "nlast-a < n <= nlast to b and delete rest",
                                       int_text(row_count(lmap)) + "," + int_text(lmap.nfirst()));
  if (!answer) return;
  const auto [a, b] = *answer;
  ChooseLast(lmap, a, b);
  workbench.show_status(user.progress);
}

void choose_part(Workbench& workbench, User user) {
  const auto rows = ask_rows_and_target(workbench, user, "Choose lattice part",
                                        "Choose: To move quantities with\n a<=n<=b to c and delete rest",
                                        workbench.document.lmap.nfirst());
  if (!rows) return;
  const auto [a, b, c] = *rows;
  ChoosePart(workbench.document.lmap, a, b, c);
  workbench.show_status(user.progress);
}

void choose_first(Workbench& workbench, User user) {
  const auto a = ask_a(user, "Choose first: Delete last part of lattice",
                       "To delete all quantities with a>=n", last_row(workbench.document.lmap));
  if (!a) return;
  DeleteRows(workbench.document.lmap, *a, highest_int);
  workbench.show_status(user.progress);
}

// clang-format off
constexpr std::array<Command, 17> cmd_rows{{
    {"Cmd", "Move All",              "",       move_all},
    {"Cmd", "Move Part",             "",       move_part},
    {"Cmd", "Copy Part",             "",       copy_part},
    {"Cmd", "Delete All",            "",       delete_all},
    {"Cmd", "Delete Part",           "",       delete_part},
    {"Cmd", "Delete all n>0",        "Ctrl+D", delete_after_0},
    {"Cmd", "Delete all but last",   "",       delete_all_but_last},
    {"Cmd", "dto outside Sums1",     "",       delete_outside_sums1},
    {"Cmd", "Del nlast",             "",       delete_last},
    {"Cmd", "Del nlast outside S1",  "",       delete_last_outside_sums1},
    {"Cmd", "Del smallest of nlast", "",       delete_smallest_of_last},
    {"Cmd", "dto. for xx percent",   "",       quickly_delete_smallest, nullptr, quickly_delete_smallest_caption},
    {"Cmd", "Ch. last b. 0",         "",       choose_last_before_0},
    {"Cmd", "Ch. last a. 0",         "",       choose_last_after_0},
    {"Cmd", "Choose Last",           "",       choose_last},
    {"Cmd", "Choose Part",           "",       choose_part},
    {"Cmd", "Choose First",          "",       choose_first},
}};
// clang-format on

}  // namespace

std::span<const Command> cmd_commands() { return cmd_rows; }

}  // namespace kov
