#include "workbench/pages.h"

#include <gtest/gtest.h>

#include <array>
#include <new>
#include <string>
#include <utility>

#include "support/failing_allocation.h"
#include "workbench/pages_desk.h"

namespace kov {
namespace {

constexpr std::array<std::pair<const char*, Page>, 9> grid_pages{{{"Slq", Page::lattices},
                                                                  {"Sldim", Page::lattices},
                                                                  {"Sllist", Page::list},
                                                                  {"SlAlgadd", Page::algadd},
                                                                  {"Slds1", Page::sums1},
                                                                  {"Slsums1", Page::sums1},
                                                                  {"Slsums2", Page::sums2},
                                                                  {"Slg2a", Page::graph2},
                                                                  {"Slconfig", Page::config}}};

TEST(Pages, KnowTheirGridsByName) {
  PagesDesk desk;
  for (const auto& [name, page] : grid_pages) {
    EXPECT_TRUE(Pages::is_grid(name)) << name;
    EXPECT_EQ(Pages::page_of(name), page) << name;
  }
  EXPECT_EQ(desk.pages.grid("Slq"), &desk.pages.slq());
  EXPECT_EQ(desk.pages.grid("Sldim"), &desk.pages.sldim());
  EXPECT_EQ(desk.pages.grid("Sllist"), &desk.pages.sllist());
  EXPECT_EQ(desk.pages.grid("SlAlgadd"), &desk.pages.algadd());
  EXPECT_EQ(desk.pages.grid("Slds1"), &desk.pages.slds1());
  EXPECT_EQ(desk.pages.grid("Slsums1"), &desk.pages.slsums1());
  EXPECT_EQ(desk.pages.grid("Slsums2"), &desk.pages.slsums2());
  EXPECT_EQ(desk.pages.grid("Slg2a"), &desk.pages.slg2a());
  EXPECT_EQ(desk.pages.grid("Slconfig"), &desk.pages.config());
  for (const char* name : {"", "slq", "Slg2b", "Sums1"}) {
    EXPECT_FALSE(Pages::is_grid(name)) << name;
    EXPECT_EQ(desk.pages.grid(name), nullptr) << name;
  }
}

TEST(Pages, ShowingOneMakesItTheActiveOneAndComputesIt) {
  PagesDesk desk;
  desk.fill_rows(0, 9);
  desk.pages.show(Page::list);
  EXPECT_TRUE(desk.active(Page::list));
  EXPECT_EQ(desk.text("Sllist", {1, 10}), "10");
  EXPECT_TRUE(desk.take_reports().empty());
  desk.pages.show(Page::sums1);
  EXPECT_TRUE(desk.active(Page::sums1));
  EXPECT_EQ(desk.text("Slsums1", {3, 1}), "10");
  EXPECT_EQ(desk.take_reports(), summed_10_of_10) << "once for both grids";
  desk.pages.show(Page::sums2);
  EXPECT_EQ(desk.text("Slsums2", {1, 1}), "10");
  EXPECT_EQ(desk.take_reports(), summed_10_of_10);
  desk.document().cph.setkmi_1("Algadd_DefaultStepCount", 77);
  desk.pages.show(Page::config);
  EXPECT_EQ(desk.text("Slconfig", {4, 1}), "77");
  desk.document().cph.setkmi_1("Slq_ColCount", 7);
  desk.pages.show(Page::lattices);
  EXPECT_EQ(desk.pages.slq().column_count(), 7);
  EXPECT_EQ(desk.person.caption(), "lattice point 10 of 10 summed up") << "showing Lattices leaves it";
  for (const Page page : {Page::comment, Page::algadd, Page::graph1, Page::graph2}) {
    desk.pages.show(page);
    EXPECT_TRUE(desk.active(page));
  }
}

TEST(Pages, ACommandRedisplaysThePageThatIsShownAndNoOther) {
  PagesDesk desk;
  desk.fill_rows(0, 9);
  desk.show(Page::list);
  EXPECT_TRUE(desk.run("Mod", "Init n=0 with 1_1").empty());
  EXPECT_EQ(desk.text("Sllist", {1, 11}), "10");
  EXPECT_EQ(desk.text("Slsums1", {3, 1}), "") << "no page that is not shown is summed up";
  desk.show(Page::sums1);
  EXPECT_EQ(desk.text("Slsums1", {3, 1}), "11");
  desk.run("Cmd", "Del nlast");
  EXPECT_EQ(desk.reports, summed_10_of_10);
  EXPECT_EQ(desk.text("Slsums1", {3, 1}), "10");
  EXPECT_EQ(desk.person.caption(), "lattice point 10 of 10 summed up") << "the status line comes first";
  desk.show(Page::sums2);
  desk.run("Mod", "Init n=0 with 1");
  EXPECT_EQ(desk.reports, summed_10_of_10);
  desk.run("Cmd", "Delete all n>0");
  EXPECT_EQ(desk.text("Slsums2", {1, 1}), "1");
  EXPECT_EQ(desk.text("Sllist", {1, 11}), "10") << "the listing waits until it is shown";
  for (const Page page : {Page::lattices, Page::comment, Page::algadd, Page::config}) {
    desk.fill_rows(0, 10);
    desk.show(page);
    EXPECT_TRUE(desk.run("Cmd", "Del nlast").empty());
    EXPECT_EQ(desk.person.caption(), "nlast = 9 (1.760 KB = 10e)");
  }
}

TEST(Pages, AfterAnErrorOfACommandThePageIsRedisplayed) {
  PagesDesk desk;
  desk.fill_rows(0, 1);
  desk.show(Page::list);
  const Command failing{"Cmd", "Failing", "", [](Workbench& workbench, User) {
                          workbench.document.lmap.clear();
                          throw std::bad_alloc();
                        }};
  run_command(failing, desk.workbench, desk.user());
  EXPECT_EQ(desk.text("Sllist", {1, 1}), "");
}

TEST(Pages, BreakInTheSummationBehindACommandLeavesNoSums) {
  PagesDesk desk;
  desk.fill_rows(0, 10);
  desk.show(Page::sums1);
  desk.person.break_at_check(1);
  desk.run("Cmd", "Del nlast");
  EXPECT_EQ(desk.text("Slsums1", {3, 1}), "");
  EXPECT_FALSE(desk.workbench.sums1.results_shown());
}

TEST(Pages, SetDefaultOffsetRedisplaysTheSliceAndTheStatusLine) {
  PagesDesk desk;
  desk.document().slice.set_offset(Lk::filled(3));
  desk.run("Mod", "Set Default Offset");
  EXPECT_EQ(desk.text("Slq", {1, 0}), "0");
  EXPECT_EQ(desk.person.caption(), " Lattices are empty. ");
}

TEST(Pages, AnEditOfTheSliceRefreshesTheStatusLine) {
  PagesDesk desk;
  desk.type("Slq", {3, 2}, "2/4");
  EXPECT_TRUE(desk.lmap().empty());
  desk.pages.leave_grids();
  EXPECT_EQ(desk.text("Slq", {3, 2}), "1/2");
  EXPECT_EQ(desk.person.caption(), "nlast = 1 (0.176 KB = 1e)");
  desk.person.set_caption("");
  desk.type("Sldim", {1, 1}, "5");
  desk.pages.leave_grids();
  EXPECT_EQ(desk.person.caption(), "nlast = 1 (0.176 KB = 1e)") << "so does another slice";
}

TEST(Pages, LeavingAPageStoresItsEditBeforeTheOtherIsShown) {
  PagesDesk desk;
  desk.type("Slq", {1, 1}, "7");
  desk.pages.show(Page::list);
  EXPECT_EQ(desk.text("Sllist", {1, 1}), "7");
}

TEST(Pages, AnEditThatIsTakenBehindAnotherPageRedrawsThatPage) {
  PagesDesk desk;
  desk.fill_rows(0, 8);
  desk.show(Page::lattices);
  desk.type("Slq", {2, 1}, "7");
  desk.workbench.active_page = static_cast<int>(Page::sums1);
  desk.pages.slq().leave();
  EXPECT_EQ(desk.reports, summed_10_of_10);
  EXPECT_EQ(desk.text("Slsums1", {3, 1}), "10");
}

TEST(Pages, EnteringAGridTakesTheEditsOfTheOthers) {
  PagesDesk desk;
  desk.type("Sldim", {1, 1}, "5");
  desk.pages.enter("Sldim");
  EXPECT_TRUE(desk.pages.sldim().edited()) << "the grid itself is not left";
  desk.pages.enter("Slq");
  EXPECT_EQ(desk.text("Slq", {0, 1}), "5") << "the slice that was typed";
  desk.type("Slq", {1, 1}, "3");
  desk.pages.enter("Sllist");
  EXPECT_TRUE(desk.active(Page::list));
  EXPECT_EQ(desk.text("Sllist", {3, 1}), "5");
  EXPECT_EQ(desk.text("Sllist", {1, 1}), "3");
}

TEST(Pages, EnteringAGridOfTheActivePageComputesNothing) {
  PagesDesk desk;
  desk.fill_rows(0, 9);
  desk.show(Page::sums1);
  desk.pages.enter("Slds1");
  EXPECT_TRUE(desk.take_reports().empty());
  desk.pages.enter("Slsums2");
  EXPECT_EQ(desk.take_reports(), summed_10_of_10);
}

TEST(Pages, ActPageShowsThePage) {
  PagesDesk desk;
  desk.fill_rows(0, 9);
  EXPECT_EQ(desk.run("Util", "ActPage", {"4"}).back(), summed_10_of_10.back());
  EXPECT_TRUE(desk.active(Page::sums1));
}

TEST(Pages, LabelsAreTheTextsBesideTheGrids) {
  PagesDesk desk;
  for (const Page page : {Page::sums1, Page::sums2, Page::graph1, Page::lattices}) {
    desk.pages.show(page);
    EXPECT_EQ(desk.pages.label(page), "");
  }
  desk.pages.show(Page::graph2);
  EXPECT_EQ(desk.pages.label(Page::graph2), " no different x");
  EXPECT_EQ(desk.pages.label(Page::algadd), " Table 0   ( 1 empty in 0..0 ,    16 empty in 0..15 ) ");
  desk.fill_rows(0, 9);
  desk.pages.show(Page::sums1);
  EXPECT_EQ(desk.pages.label(Page::sums1), " Double clíck on table \n or close this menu \n to sum up ");
  desk.pages.show(Page::graph1);
  EXPECT_EQ(desk.pages.label(Page::graph1), " Click on checkboxes to draw Sums1 along x");
  desk.person.break_at_check(1);
  desk.pages.show(Page::sums2);
  EXPECT_EQ(desk.pages.label(Page::sums2), " Creating Sums2 was stopped by Break ");
}

TEST(Pages, TellWhenSomethingAroundTheGridsMayHaveChanged) {
  PagesDesk desk;
  desk.fill_rows(0, 1);
  int changes = 0;
  desk.pages.set_changed([&] { ++changes; });
  const auto changed = [&] { return std::exchange(changes, 0) > 0; };
  desk.run("Util", "ActPage", {"3"});
  EXPECT_TRUE(changed()) << "the page";
  desk.pages.algadd().click(GridClick::right, {1, 1});
  EXPECT_TRUE(changed()) << "a menu";
  desk.run("Bar", "AA", {"3"});
  EXPECT_TRUE(changed()) << "a caption";
  desk.pages.algadd().press(GridKey::of('P'));
  EXPECT_TRUE(changed()) << "a table that is not empty any more";
  desk.workbench.sums1.open_menu();
  EXPECT_TRUE(changed()) << "the Modify Range menu";
  desk.run("Bar", "S1", {"3"});
  EXPECT_TRUE(changed());
  desk.workbench.apply_parameter("File_in_nelast", desk.person);
  EXPECT_TRUE(changed()) << "a caption that shows a parameter";
  desk.pages.leave_grids();
  EXPECT_FALSE(changed());
}

TEST(Pages, KnowOfAnEditInAnyGrid) {
  PagesDesk desk;
  for (const char* grid : {"Slq", "Sldim", "SlAlgadd", "Slds1"}) {
    EXPECT_FALSE(desk.pages.edit_under_way()) << grid;
    desk.type(grid, {1, 3}, "2");
    EXPECT_TRUE(desk.pages.edit_under_way()) << grid;
    desk.pages.leave_grids();
  }
  EXPECT_FALSE(desk.pages.edit_under_way());
}

TEST(Pages, ThatAreGoneShowNothing) {
  Desk desk;
  { Pages pages(desk.workbench, desk.user()); }
  desk.fill_rows(0, 1);
  desk.workbench.show_page(Page::sums1);
  desk.run("Cmd", "Del nlast");
  desk.run("Bar", "S1", {"3"});
  EXPECT_EQ(desk.workbench.sums1.Slsums1_text(3, 1), "");
  EXPECT_EQ(desk.person.caption(), "nlast = 0 (0.176 KB = 1e)");
}

TEST(Pages, ARedisplayWithoutEnoughMemoryIsReported) {
  PagesDesk desk;
  desk.show(Page::config);
  {
    const FailingAllocation failing(1);
    desk.pages.refresh();
  }
  EXPECT_EQ(desk.take_reports(), (Reports{"beep", "error: Not enough memory to redisplay the page."}));
  desk.pages.refresh();
  EXPECT_EQ(desk.text("Slconfig", {2, 1}), "Algadd_DefaultStepCount");
}

}  // namespace
}  // namespace kov
