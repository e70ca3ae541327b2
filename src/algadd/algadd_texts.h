#pragma once

#include <string>

#include "algadd/algadd.h"
#include "config/cphclass.h"
#include "lattice/lmap.h"

namespace kov {

/// What a dialog of the tables or of a run says: its caption, and the prompt above "enter ...".
struct DialogText {
  std::string caption;
  std::string prompt;
};

// Introductions of the step count's dialog, by the run's mode.
extern const char* const all_but_last_intro;
extern const char* const outside_ranges_intro;
/// Names the percentage and the threshold of the tracking mode.
std::string tracking_intro(const cphclass& cph);

// Captions of the Alg menu's items that follow the state.
/// "Change aanr=3"
std::string change_aanr_caption(const Algadd& algadd);
/// "Del n>nf=0, 100 AA", or "<Lattices empty>"
std::string del_after_first_caption(const Lmap& lmap, const cphclass& cph);
/// "Del n>0, then 100 AA"
std::string del_and_do_caption(const cphclass& cph);

// Dialogs of the table menu; those that name a table speak of the current one.
DialogText choose_table_dialog();
DialogText copy_table_dialog();
DialogText copy_entry_dialog();
DialogText multiply_all_dialog(const Algadd& algadd);
DialogText multiply_abs_not_1_dialog(const Algadd& algadd);
DialogText multiply_selected_dialog(const Algadd& algadd);
DialogText set_selected_dialog(const Algadd& algadd);
DialogText select_dialog();
/// "0,255": the selection as it is preset in its dialog.
std::string selection_preset(const Algadd& algadd);

/// Asked before a table, or an entry, is inserted where the last one is not empty.
std::string insert_table_question();
std::string insert_entry_question();

/// How many percent of the row nlast to delete. The store must not be empty.
DialogText delete_smallest_dialog(const Lmap& lmap);

}  // namespace kov
