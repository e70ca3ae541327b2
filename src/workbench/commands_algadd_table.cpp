#include <array>
#include <functional>

#include "algadd/algadd_texts.h"
#include "algadd/table_edits.h"
#include "interact/integer_question.h"
#include "workbench/choose_table.h"
#include "workbench/command_groups.h"
#include "workbench/quantity_question.h"

namespace kov {
namespace {

constexpr IntegerBounds table_indices{0, Algadd_TableCount - 1};
constexpr IntegerBounds entry_numbers{0, Algadd_EntryCount - 1};

void copy_table(Workbench& workbench, User user) {
  const DialogText dialog = copy_table_dialog();
  const std::int32_t preset = workbench.document.cph.kmi("Algadd_DefaultTableIndex");
  const auto to = ask_integer(user.questions, dialog.caption, dialog.prompt, preset, table_indices);
  if (to) copy_current_table(workbench.document.algadd, *to);
}

void erase_table(Workbench& workbench, User) {
  Algadd& algadd = workbench.document.algadd;
  algadd.erase_table(algadd.aanr());
}

/// A command that asks for a number c and does something with it in the current table.
template <DialogText (*dialog_of)(const Algadd&), void (*operation)(Algadd&, const cotyp&)>
void ask_c_and_do(Workbench& workbench, User user) {
  Algadd& algadd = workbench.document.algadd;
  const DialogText dialog = dialog_of(algadd);
  if (const auto c = ask_quantity(user.questions, dialog.caption, dialog.prompt)) operation(algadd, *c);
}

void select_p(Workbench& workbench, User user) {
  Algadd& algadd = workbench.document.algadd;
  const DialogText dialog = select_dialog();
  const auto selection = ask_two_integers(user.questions, dialog.caption, dialog.prompt,
                                          selection_preset(algadd), entry_numbers, std::less_equal<>{});
  if (!selection) return;
  const auto [first, last] = *selection;
  algadd.select(first, last);
}

void copy_current_entry(Workbench& workbench, User user) {
  const DialogText dialog = copy_entry_dialog();
  const auto to =
      ask_integer(user.questions, dialog.caption, dialog.prompt, workbench.current_entry, entry_numbers);
  if (to) copy_entry(workbench.document.algadd, workbench.current_entry, *to);
}

void erase_current_entry(Workbench& workbench, User) {
  Algadd& algadd = workbench.document.algadd;
  algadd.erase_entry(algadd.aanr(), workbench.current_entry);
}

void remove_current_entry(Workbench& workbench, User) {
  remove_entry(workbench.document.algadd, workbench.current_entry);
}

void remove_current_table(Workbench& workbench, User) { remove_table(workbench.document.algadd); }

void insert_new_table(Workbench& workbench, User user) {
  Algadd& algadd = workbench.document.algadd;
  if (!insert_table_loses(algadd) || user.questions.yes_no(insert_table_question())) insert_table(algadd);
}

void insert_new_entry(Workbench& workbench, User user) {
  Algadd& algadd = workbench.document.algadd;
  if (!insert_entry_loses(algadd) || user.questions.yes_no(insert_entry_question())) {
    insert_entry(algadd, workbench.current_entry);
  }
}

void renumber_all_entries(Workbench& workbench, User) { renumber_entries(workbench.document.algadd); }

void renumber_all_tables(Workbench& workbench, User) {
  renumber_tables(workbench.document.algadd, workbench.document.cph);
}

void close_menu(Workbench& workbench, User) { workbench.algadd_menu_open = false; }

/// What every command of the menu ends with, a cancelled one too: the grid is filled anew.
template <void (*command)(Workbench&, User)>
void then_refill(Workbench& workbench, User user) {
  command(workbench, user);
  workbench.display().algadd_changed();
}

// clang-format off
constexpr std::array<Command, 17> algadd_table_rows{{
    {"Algadd", "CopyTable",          "", then_refill<copy_table>},
    {"Algadd", "EraseTable",         "", then_refill<erase_table>},
    {"Algadd", "MultiplyAll_p",      "", then_refill<ask_c_and_do<multiply_all_dialog, multiply_all_p>>},
    {"Algadd", "Mult_all_pabsnot1",  "", then_refill<ask_c_and_do<multiply_abs_not_1_dialog, multiply_all_p_abs_not_1>>},
    {"Algadd", "MultiplySelected_p", "", then_refill<ask_c_and_do<multiply_selected_dialog, multiply_selected_p>>},
    {"Algadd", "SetSelected_p",      "", then_refill<ask_c_and_do<set_selected_dialog, set_selected_p>>},
    {"Algadd", "Select_p",           "", then_refill<select_p>},
    {"Algadd", "ChooseNr",           "", then_refill<choose_algadd_table>},
    {"Algadd", "CopyEntry",          "", then_refill<copy_current_entry>},
    {"Algadd", "EraseEntry",         "", then_refill<erase_current_entry>},
    {"Algadd", "RemoveEntry",        "", then_refill<remove_current_entry>},
    {"Algadd", "RemoveTable",        "", then_refill<remove_current_table>},
    {"Algadd", "InsertTable",        "", then_refill<insert_new_table>},
    {"Algadd", "InsertEntry",        "", then_refill<insert_new_entry>},
    {"Algadd", "RenumberEntries",    "", then_refill<renumber_all_entries>},
    {"Algadd", "RenumberTables",     "", then_refill<renumber_all_tables>},
    {"Algadd", "Close",              "", then_refill<close_menu>},
}};
// clang-format on

}  // namespace

std::span<const Command> algadd_table_commands() { return algadd_table_rows; }

}  // namespace kov
