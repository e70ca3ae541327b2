// The keys of the Lattices page, and what they leave behind.
#include "pages/during_operation.h"
#include "pages/window_desk.h"

namespace kov {
namespace {

class LatticeKeys : public WindowDesk {
 protected:
  QLineEdit& editor(const char* name) { return *grid(name).viewport()->findChild<QLineEdit*>(); }
};

TEST_F(LatticeKeys, ASelectionThatMovesInSlqRefreshesTheStatusLine) {
  start();
  workbench().document.cph.setkmi_1("Sums_EntryCountPerDisplay", 1);
  choose_tab(4);
  choose_tab(0);
  ASSERT_EQ(caption(), "lattice point 1 of 1 summed up");
  press(Qt::Key_Down);
  EXPECT_EQ(caption(), "nlast = 0 (0.176 KB = 1e)");
}

TEST_F(LatticeKeys, StepAnOffset) {
  start();
  click("Sldim", {1, 2});
  ASSERT_EQ(text("Sldim", {1, 2}), "-3");
  type("p");
  EXPECT_EQ(editor("Sldim").text(), "-2");
  EXPECT_EQ(text("Slq", {1, 0}), "-2");
  type("mM");
  EXPECT_EQ(editor("Sldim").text(), "-4");
  EXPECT_EQ(text("Slq", {1, 0}), "-4");
}

TEST_F(LatticeKeys, EnterTakesAnOffsetAndStays) {
  start();
  click("Sldim", {1, 2});
  type("12");
  press(Qt::Key_Return);
  EXPECT_EQ(text("Sldim", {1, 2}), "12");
  EXPECT_EQ(text("Slq", {1, 0}), "12");
  EXPECT_EQ(model("Sldim").selected(), (GridCell{1, 2}));
  type("-+");
  press(Qt::Key_Return);
  EXPECT_EQ(text("Sldim", {1, 2}), "12");
  EXPECT_EQ(editor("Sldim").text(), "12");
}

TEST_F(LatticeKeys, YMakesACoordinateTheSecondAxis) {
  start();
  ASSERT_EQ(text("Slq", {0, 0}), "-y=k2  x=k1");
  click("Sldim", {1, 1});
  type("y");
  EXPECT_EQ(text("Slq", {0, 0}), "-y=n  x=k1");
  EXPECT_EQ(text("Sldim", {0, 1}), "n=-y");
  EXPECT_EQ(text("Sldim", {0, 3}), "k2");
}

TEST_F(LatticeKeys, TabInTheLastRowOfSldimEntersSlqWithWhatWasTyped) {
  start();
  click("Sldim", {1, 2});
  type("x");
  click("Sldim", {1, 31});
  type("4");
  press(Qt::Key_Tab);
  EXPECT_EQ(workbench().document.slice.offset().coo[30], 4);
  EXPECT_TRUE(grid("Slq").isAncestorOf(QApplication::focusWidget()));
}

TEST_F(LatticeKeys, WhatIsNoQuantityChangesNothing) {
  start();
  click("Slq", {2, 2});
  type("3");
  press(Qt::Key_Return);
  type("1/0");
  press(Qt::Key_Return);
  EXPECT_EQ(editor("Slq").text(), "1/0");
  press(Qt::Key_Down);
  EXPECT_EQ(text("Slq", {2, 2}), "3");
  EXPECT_EQ(model("Slq").selected(), (GridCell{2, 3}));
}

TEST_F(LatticeKeys, TheListIsFittedWhenALongOperationIsOver) {
  start();
  press_ctrl_a();
  choose_tab(1);
  StringGrid& list = grid("Sllist");
  const int rows = list.model()->rowCount();
  bool seen = false;
  {
    const DuringOperation during(*window, [&] {
      window->resize(window->width(), window->height() - 200);
      QCoreApplication::processEvents();
      EXPECT_LT(list.rows_in_view(), rows);
      EXPECT_EQ(list.model()->rowCount(), rows);
      seen = true;
    });
    window->run_own("Mine", [&] { work_until(seen); });
  }
  EXPECT_TRUE(seen);
  EXPECT_LT(list.model()->rowCount(), rows);
  EXPECT_EQ(list.model()->rowCount(), list.rows_in_view());
}

}  // namespace
}  // namespace kov
