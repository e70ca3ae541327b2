#include "algadd/algadd_texts.h"

#include <gtest/gtest.h>

#include "run_fixture.h"

namespace kov {
namespace {

class AlgaddTexts : public RunFixture {};

TEST_F(AlgaddTexts, LiveCaptions) {
  set("Algadd_DefaultStepCount", 100);
  algadd.set_aanr(7);
  EXPECT_EQ(change_aanr_caption(algadd), "Change aanr=7");
  EXPECT_EQ(del_and_do_caption(cph), "Del n>0, then 100 AA");
  EXPECT_EQ(del_after_first_caption(lmap, cph), "<Lattices empty>");
  lmap.set(Lk::at(0, -2), 1);
  lmap.set(Lk::at(0, 5), 1);
  EXPECT_EQ(del_after_first_caption(lmap, cph), "Del n>nf=-2, 100 AA");
}

TEST_F(AlgaddTexts, Introductions) {
  EXPECT_STREQ(all_but_last_intro,
               "DelAllButLast: to save maximal memory, after every step\n"
               "all lattice points except those with n=nlast\n(history) will be deleted\n");
  const std::string outside =
      "To save memory, after every step\nall lattice points outside\nthe current Sums1 table\n"
      "with n<nlast will be deleted.\nSo history of current Sums1 definition\nremains available.\n";
  EXPECT_EQ(outside_ranges_intro, outside);
  set("DelSmallPercent_Default", 40);
  set("Algadd_TM_DelSmallestAfterKB", 1234);
  EXPECT_EQ(tracking_intro(cph),
            outside +
                "\nAdditionally the smallest 40\npercent of the last row nlast are deleted\n"
                "iteratively every time when more\nthan 1234 KB are used.\n");
}

TEST_F(AlgaddTexts, Dialogs) {
  algadd.set_aanr(3);
  algadd.select(2, 250);
  lmap.set(Lk::at(0, 12), 1);
  struct Row {
    DialogText dialog;
    const char* caption;
    const char* prompt;
  };
  // clang-format off
  const Row rows[] = {
      {choose_table_dialog(), "Algadd Nr.", "To choose Algadd table index"},
      {copy_table_dialog(), "Copy Algadd Table", "To copy current Algadd table\nto Algadd table index i\nand then change Algadd table index to i"},
      {copy_entry_dialog(), "Copy Algadd Entry", "To copy current Algadd entry\nto Algadd entry i\n"},
      {multiply_all_dialog(algadd), "Multiply all p", "To multiply all p of Algadd3\n by a number c"},
      {multiply_abs_not_1_dialog(algadd), "Multiply all p", "To multiply all p with |p|!=1\n of Algadd3\n by a number c"},
      {multiply_selected_dialog(algadd), "Multiply selected p", "All p of entries 2..250 are selected.\nTo multiply the selected p of Algadd3\n by a number c"},
      {set_selected_dialog(algadd), "Set selected p", "All p of entries 2..250 are selected.\nTo set the selected p of Algadd3\n to a number c"},
      {select_dialog(), "Select p", "To select p of entries with entry number a<=n<=b"},
      {delete_smallest_dialog(lmap), "Partial Deletion of Row nlast=12", "To continue branching algorithms\nwithout too much memory consumption\nit can be necessary to delete those lattice points of the\nlast row, which have the smallest absolute quantities\n\nTo delete i percent of last row\nwith smallest absolute quantities"},
  };
  // clang-format on
  for (const Row& row : rows) {
    EXPECT_EQ(row.dialog.caption, row.caption);
    EXPECT_EQ(row.dialog.prompt, row.prompt);
  }
  EXPECT_EQ(selection_preset(algadd), "2,250");
}

TEST_F(AlgaddTexts, Questions) {
  EXPECT_EQ(insert_table_question(),
            "Insertion will cause deletion\nof last nonempty table 15\nDo you want to proceed?");
  EXPECT_EQ(insert_entry_question(),
            "Insertion will cause deletion\nof last nonempty entry 255\nDo you want to proceed?");
}

}  // namespace
}  // namespace kov
