#include "sums/sums1_page.h"

#include <gtest/gtest.h>

#include "sums/sums_desk.h"

namespace kov {
namespace {

constexpr const char* invitation = " Double clíck on table \n or close this menu \n to sum up ";
constexpr const char* hint = "Press right mouse button \nto activate the Modify Range Menu ";

class Sums1PageTest : public ::testing::Test, protected SumsDesk {
 protected:
  void sum_up_at_once() { cph.setkmi_1("Sums1_SumUp_at_once", 1); }
  std::string total() const { return page.Slsums1_text(3, 1); }
};

TEST_F(Sums1PageTest, ShowsItsResultsAtFirst) {
  EXPECT_FALSE(page.menu_open());
  EXPECT_TRUE(page.results_shown());
  EXPECT_EQ(page.label(), "");
  EXPECT_EQ(page.hint(), "");
  EXPECT_EQ(total(), "");
}

TEST_F(Sums1PageTest, SummingUpDisplaysAndClosesTheMenu) {
  fill_line(3);
  page.open_menu();
  EXPECT_TRUE(page.menu_open());
  EXPECT_FALSE(page.results_shown());
  page.sum_up(user());
  EXPECT_FALSE(page.menu_open());
  EXPECT_TRUE(page.results_shown());
  EXPECT_EQ(page.label(), invitation);
  EXPECT_EQ(total(), "3");
}

TEST_F(Sums1PageTest, ARangeThatChangedOpensTheMenuAndIsNotSummedUp) {
  fill_line(3);
  page.range_changed(user());
  EXPECT_TRUE(page.menu_open());
  EXPECT_EQ(total(), "");
}

TEST_F(Sums1PageTest, ARangeThatChangedIsSummedUpAtOnceWhereThatIsWanted) {
  fill_line(3);
  sum_up_at_once();
  page.range_changed(user());
  EXPECT_FALSE(page.menu_open());
  EXPECT_EQ(total(), "3");
}

TEST_F(Sums1PageTest, TheHintLeadsToTheMenuWhileSumsFollowAtOnce) {
  fill_line(3);
  page.sum_up(user());
  EXPECT_EQ(page.hint(), "");
  sum_up_at_once();
  page.sum_up(user());
  EXPECT_EQ(page.hint(), hint);
  page.open_menu();
  EXPECT_EQ(page.hint(), "");
  page.close_menu(user());
  EXPECT_EQ(page.hint(), hint);
}

TEST_F(Sums1PageTest, CloseSumsUpAndClosesTheMenuWhateverComesOfIt) {
  page.open_menu();
  page.close_menu(user());
  EXPECT_FALSE(page.menu_open());
  EXPECT_EQ(total(), "");

  fill_line(3);
  page.open_menu();
  page.close_menu(user());
  EXPECT_FALSE(page.menu_open());
  EXPECT_EQ(total(), "3");

  fill_with_overflow();
  page.open_menu();
  page.close_menu(user());
  EXPECT_FALSE(page.menu_open());
  EXPECT_TRUE(page.results_shown());
  EXPECT_EQ(total(), "3");
}

TEST_F(Sums1PageTest, AnEmptyStoreLeavesTheMenuAndClearsTheLabel) {
  fill_line(3);
  page.sum_up(user());
  lmap.clear();
  page.open_menu();
  page.sum_up(user());
  EXPECT_TRUE(page.menu_open());
  EXPECT_EQ(page.label(), "");
  EXPECT_EQ(total(), "");
}

TEST_F(Sums1PageTest, AFailureIsReportedAndLeavesTheMenuAndTheDisplay) {
  fill_line(3);
  page.sum_up(user());
  fill_with_overflow();
  page.open_menu();
  page.sum_up(user());
  EXPECT_TRUE(page.menu_open());
  EXPECT_EQ(total(), "3");
  EXPECT_EQ(reports, (Reports{"beep", "error:  MathError when creating Sums1: \n  floating point overflow"}));
}

TEST_F(Sums1PageTest, BreakShowsTheLabelInsteadOfTheResultsUntilTheNextSummation) {
  fill_line(3);
  cph.setkmi_1("Sums_EntryCountPerDisplay", 1);
  person.break_at_check(2);
  page.sum_up(user());
  EXPECT_FALSE(page.menu_open());
  EXPECT_FALSE(page.results_shown());
  EXPECT_EQ(page.label(), invitation);
  page.sum_up(user());
  EXPECT_TRUE(page.results_shown());
}

TEST_F(Sums1PageTest, AFailureBehindABreakStillShowsNoResults) {
  fill_line(3);
  cph.setkmi_1("Sums_EntryCountPerDisplay", 1);
  person.break_at_check(1);
  page.sum_up(user());
  fill_with_overflow();
  page.sum_up(user());
  EXPECT_FALSE(page.results_shown());
}

TEST_F(Sums1PageTest, SaysThatItChanged) {
  int changes = 0;
  page.set_changed([&changes] { ++changes; });
  page.open_menu();
  EXPECT_EQ(changes, 1);
  page.sum_up(user());
  EXPECT_EQ(changes, 2);
  page.close_menu(user());
  EXPECT_EQ(changes, 3);
  page.range_changed(user());
  EXPECT_EQ(changes, 4);
}

}  // namespace
}  // namespace kov
