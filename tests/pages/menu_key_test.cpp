// What the right mouse button does, by keys.
#include <QContextMenuEvent>
#include <algorithm>

#include "pages/grid_desk.h"
#include "pages/window_desk.h"

namespace kov {
namespace {

/// The Menu key as the desktop hands it on.
void press_menu_key() {
  QWidget* focus = QApplication::focusWidget();
  const QPoint centre = focus->rect().center();
  QContextMenuEvent event(QContextMenuEvent::Keyboard, centre, focus->mapToGlobal(centre));
  QApplication::sendEvent(focus, &event);
}

class MenuKey : public GridDesk {};

TEST_F(MenuKey, IsTheRightButtonAtTheSelectedCell) {
  open();
  model.move_to({3, 2});
  press_menu_key();
  press(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(model.events, (Events{"right 3,2", "right 3,2"}));
}

TEST_F(MenuKey, IsTheRightButtonInTheEditorToo) {
  open();
  press(Qt::Key_F2);
  ASSERT_EQ(QApplication::focusWidget(), &editor());
  press_menu_key();
  press(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(model.events, (Events{"right 1,1", "right 1,1"}));
}

TEST_F(MenuKey, OfTheMouseCountsOnce) {
  open();
  click({3, 2}, Qt::RightButton);
  QContextMenuEvent event(QContextMenuEvent::Mouse, place({3, 2}),
                          grid->viewport()->mapToGlobal(place({3, 2})));
  QApplication::sendEvent(grid->viewport(), &event);
  EXPECT_EQ(std::count(model.events.begin(), model.events.end(), "right 3,2"), 1);
}

TEST_F(MenuKey, F10AloneIsTheMenuBars) {
  open();
  press(Qt::Key_F10);
  EXPECT_EQ(model.events, Events{});
}

class MenuKeyOnPages : public WindowDesk {};

TEST_F(MenuKeyOnPages, OpensTheirMenusAndTheNewListStart) {
  start();
  choose_tab(3);
  press_menu_key();
  EXPECT_TRUE(window->findChild<QWidget*>("AlgaddMenu")->isVisible());
  choose_tab(4);
  press(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(window->findChild<QWidget*>("GroupBox_Modify_Range")->isVisible());
  choose_tab(1);
  const AnswerInput answer("0");
  press_menu_key();
  EXPECT_EQ(answer.caption, "New list start");
}

}  // namespace
}  // namespace kov
