#include "algadd/algadd_texts.h"

#include "text/integers.h"

namespace kov {

namespace {

std::string current_table(const Algadd& algadd) { return "Algadd" + int_text(algadd.aanr()); }

std::string selected_entries(const Algadd& algadd) {
  return "All p of entries " + int_text(algadd.selected_first()) + ".." + int_text(algadd.selected_last()) +
         " are selected.\n";
}

std::string insertion_question(const std::string& lost) {
  return "Insertion will cause deletion\nof last nonempty " + lost + "\nDo you want to proceed?";
}

std::string default_steps(const cphclass& cph) { return int_text(cph.kmi("Algadd_DefaultStepCount")); }

}  // namespace

const char* const all_but_last_intro =
    "DelAllButLast: to save maximal memory, after every step\nall lattice points except those with n=nlast\n"
    "(history) will be deleted\n";

const char* const outside_ranges_intro =
    "To save memory, after every step\nall lattice points outside\nthe current Sums1 table"
    "\nwith n<nlast will be deleted.\nSo history of current Sums1 definition\nremains available.\n";

std::string tracking_intro(const cphclass& cph) {
  return outside_ranges_intro +
         ("\nAdditionally the smallest " + int_text(cph.kmi("DelSmallPercent_Default"))) +
         "\npercent of the last row nlast are deleted\niteratively every time when more\nthan " +
         int_text(cph.kmi("Algadd_TM_DelSmallestAfterKB")) + " KB are used.\n";
}

std::string change_aanr_caption(const Algadd& algadd) { return "Change aanr=" + int_text(algadd.aanr()); }

std::string del_after_first_caption(const Lmap& lmap, const cphclass& cph) {
  if (lmap.empty()) return "<Lattices empty>";
  return "Del n>nf=" + int_text(lmap.nfirst()) + ", " + default_steps(cph) + " AA";
}

std::string del_and_do_caption(const cphclass& cph) { return "Del n>0, then " + default_steps(cph) + " AA"; }

DialogText choose_table_dialog() { return {"Algadd Nr.", "To choose Algadd table index"}; }

DialogText copy_table_dialog() {
  return {"Copy Algadd Table",
          "To copy current Algadd table\nto Algadd table index i\nand then change Algadd table index to i"};
}

DialogText copy_entry_dialog() {
  return {"Copy Algadd Entry", "To copy current Algadd entry\nto Algadd entry i\n"};
}

DialogText multiply_all_dialog(const Algadd& algadd) {
  return {"Multiply all p", "To multiply all p of " + current_table(algadd) + "\n by a number c"};
}

DialogText multiply_abs_not_1_dialog(const Algadd& algadd) {
  return {"Multiply all p",
          "To multiply all p with |p|!=1\n of " + current_table(algadd) + "\n by a number c"};
}

DialogText multiply_selected_dialog(const Algadd& algadd) {
  return {"Multiply selected p", selected_entries(algadd) + "To multiply the selected p of " +
                                     current_table(algadd) + "\n by a number c"};
}

DialogText set_selected_dialog(const Algadd& algadd) {
  return {"Set selected p", selected_entries(algadd) + "To set the selected p of " + current_table(algadd) +
                                "\n to a number c"};
}

DialogText select_dialog() { return {"Select p", "To select p of entries with entry number a<=n<=b"}; }

std::string selection_preset(const Algadd& algadd) {
  return int_text(algadd.selected_first()) + "," + int_text(algadd.selected_last());
}

std::string insert_table_question() { return insertion_question("table " + int_text(Algadd_TableCount - 1)); }

std::string insert_entry_question() { return insertion_question("entry " + int_text(Algadd_EntryCount - 1)); }

DialogText delete_smallest_dialog(const Lmap& lmap) {
  return {"Partial Deletion of Row nlast=" + int_text(lmap.nlast()),
          "To continue branching algorithms\nwithout too much memory consumption\n"
          "it can be necessary to delete those lattice points of the\n"
          "last row, which have the smallest absolute quantities\n\n"
          "To delete i percent of last row\nwith smallest absolute quantities"};
}

}  // namespace kov
