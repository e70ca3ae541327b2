#include "workbench/choose_table.h"

#include "algadd/algadd_texts.h"
#include "interact/integer_question.h"

namespace kov {

void choose_algadd_table(Workbench& workbench, User user) {
  const DialogText dialog = choose_table_dialog();
  const std::int32_t preset = workbench.document.cph.kmi("Algadd_DefaultTableIndex");
  const auto table =
      ask_integer(user.questions, dialog.caption, dialog.prompt, preset, {0, Algadd_TableCount - 1});
  if (!table) return;
  workbench.document.algadd.set_aanr(*table);
  workbench.display().algadd_changed();
}

void choose_sums1_table(Workbench& workbench, User user) {
  Document& document = workbench.document;
  const auto table = ask_integer(user.questions, choose_range_table_caption, choose_range_table_prompt,
                                 document.ranges.current_index(), range_table_bounds);
  if (!table) return;
  choose_range_table(document.ranges, *table, document.cph);
  workbench.display().ranges_changed();
  workbench.sums1.open_menu();
}

}  // namespace kov
