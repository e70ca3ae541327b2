#include <gtest/gtest.h>

#include "workbench/desk.h"

namespace kov {
namespace {

TEST(Util, ActPageShowsThePageOfTheIndex) {
  Desk desk;
  EXPECT_EQ(desk.run_text("Util", "ActPage", {"4"}),
            dialog_report("Page hotkey", "To quickly select active page\nenter integer i [0<=i<=8]", "4"));
  EXPECT_EQ(desk.workbench.active_page, 4);
}

TEST(Util, ActPagePresetsTheActivePage) {
  Desk desk;
  desk.workbench.active_page = 7;
  EXPECT_EQ(desk.preset("Util", "ActPage"), "7");
}

TEST(Util, ActPageRefusesAPageThatDoesNotExist) {
  Desk desk;
  desk.workbench.active_page = 2;
  for (const char* answer : {"9", "-1", "four"}) {
    EXPECT_EQ(desk.run("Util", "ActPage", {answer}).back(), std::string("refused: ") + answer);
  }
  desk.run("Util", "ActPage");
  EXPECT_EQ(desk.workbench.active_page, 2);
}

}  // namespace
}  // namespace kov
