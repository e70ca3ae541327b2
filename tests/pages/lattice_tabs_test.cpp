#include <QWheelEvent>

#include "pages/window_desk.h"

namespace kov {
namespace {

class LatticeTabs : public WindowDesk {
 protected:
  SlqGrid& Slq() { return window->pages().slq(); }
  QLineEdit& editor(const char* name) { return *grid(name).viewport()->findChild<QLineEdit*>(); }
  void wheel(int notches) {
    QWidget* viewport = grid("Sllist").viewport();
    QWheelEvent event(QPointF(50, 50), viewport->mapToGlobal(QPointF(50, 50)), {}, {0, 120 * notches},
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(viewport, &event);
  }
};

TEST_F(LatticeTabs, BothEditorsAreAlwaysVisible) {
  start();
  EXPECT_TRUE(editor("Slq").isVisible());
  EXPECT_TRUE(editor("Sldim").isVisible());
}

TEST_F(LatticeTabs, SldimIsAsWideAsItsLongestOffset) {
  start();
  EXPECT_GE(grid("Sldim").columnWidth(0), editor("Sldim").fontMetrics().horizontalAdvance("-2147483648"));
  EXPECT_GT(grid("Slq").width(), 3 * grid("Sldim").width());
}

TEST_F(LatticeTabs, TypingAQuantityStoresIt) {
  start();
  click("Slq", {3, 2});
  type("2/4");
  press(Qt::Key_Tab);
  EXPECT_EQ(text("Slq", {3, 2}), "1/2");
  EXPECT_EQ(lmap().get(Slq().key_at({3, 2})), cotyp(1, 2, 0, 1));
  EXPECT_EQ(caption(), "nlast = 0 (0.352 KB = 2e)");
  EXPECT_EQ(window->findChild<QWidget*>("Points")->property("text").toString(), "2 points");
}

TEST_F(LatticeTabs, PAndMStepAQuantity) {
  start();
  click("Slq", {2, 2});
  type("p");
  EXPECT_EQ(editor("Slq").text(), "1");
  EXPECT_EQ(lmap().count(), 2u);
  type("m");
  EXPECT_EQ(editor("Slq").text(), "0");
  EXPECT_EQ(lmap().count(), 1u);
}

TEST_F(LatticeTabs, XOnTheRowOfYSwapsTheAxes) {
  start();
  ASSERT_EQ(text("Slq", {0, 0}), "-y=k2  x=k1");
  click("Sldim", {1, 3});
  type("x");
  EXPECT_EQ(text("Slq", {0, 0}), "-y=k1  x=k2");
  EXPECT_EQ(text("Sldim", {0, 2}), "k1=-y");
}

TEST_F(LatticeTabs, AnOffsetThatWasTypedIsTakenWhenSlqIsEntered) {
  start();
  click("Sldim", {1, 2});
  type("5");
  EXPECT_EQ(text("Slq", {1, 0}), "-3");
  click("Slq", {2, 2});
  EXPECT_EQ(text("Slq", {1, 0}), "5");
}

TEST_F(LatticeTabs, TheSliceSizeActsFromTheParameters) {
  start();
  choose_tab(8);
  workbench().document.cph.setkmi_1("Slq_ColCount", 1000);
  workbench().document.cph.setkmi_1("Slq_RowCount", 2000);
  QElapsedTimer time;
  time.start();
  choose_tab(0);
  QCoreApplication::processEvents();
  qDebug("a slice of 1000 x 2000 cells shown in %lld ms", time.elapsed());
  EXPECT_EQ(grid("Slq").model()->columnCount(), 999);
  EXPECT_EQ(grid("Slq").model()->rowCount(), 1999);
}

TEST_F(LatticeTabs, TheListShowsAsManyPointsAsFit) {
  start();
  press_ctrl_a();
  QElapsedTimer time;
  time.start();
  choose_tab(1);
  QCoreApplication::processEvents();
  qDebug("a list page over %zu points shown in %lld ms", lmap().count(), time.elapsed());
  StringGrid& list = grid("Sllist");
  EXPECT_EQ(list.model()->rowCount(), list.rows_in_view());
  EXPECT_TRUE(list.hasFocus());
  EXPECT_EQ(text("Sllist", {0, 1}), "1");
  const int rows = list.rows_in_view();
  window->resize(window->width(), window->height() - 200);
  QCoreApplication::processEvents();
  EXPECT_LT(list.rows_in_view(), rows);
  EXPECT_EQ(list.model()->rowCount(), list.rows_in_view());
}

TEST_F(LatticeTabs, KeysAndWheelScrollTheList) {
  start();
  press_ctrl_a();
  choose_tab(1);
  press(Qt::Key_Down);
  EXPECT_EQ(text("Sllist", {0, 1}), "2");
  wheel(-1);
  const int lines = QApplication::wheelScrollLines();
  EXPECT_EQ(text("Sllist", {0, 1}), std::to_string(2 + lines));
  wheel(1);
  EXPECT_EQ(text("Sllist", {0, 1}), "2");
  press(Qt::Key_PageDown, Qt::ControlModifier);
  const int rows = grid("Sllist").rows_in_view();
  EXPECT_EQ(text("Sllist", {0, rows}), std::to_string(lmap().count()));
  press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(text("Sllist", {0, 1}), "1");
}

TEST_F(LatticeTabs, TheRightButtonAsksForTheStartOfTheList) {
  start();
  press_ctrl_a();
  choose_tab(1);
  AnswerInput answer("3");
  click("Sllist", {1, 1}, Qt::RightButton);
  EXPECT_EQ(answer.caption, "New list start");
  EXPECT_EQ(text("Sllist", {3, 1}), "3");
}

TEST_F(LatticeTabs, CommandsRedisplayTheList) {
  start();
  choose_tab(1);
  EXPECT_EQ(text("Sllist", {1, 1}), "1");
  trigger("Cmd/Delete All");
  EXPECT_EQ(text("Sllist", {1, 1}), "");
}

}  // namespace
}  // namespace kov
