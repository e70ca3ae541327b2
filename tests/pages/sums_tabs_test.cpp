// What stands on the pages of sums where there are no results.
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolTip>

#include "pages/during_operation.h"
#include "pages/window_desk.h"
#include "widgets/qt_text.h"

namespace kov {
namespace {

class SumsTabs : public WindowDesk {
 protected:
  /// An operation shows itself only when it lasts: the sums must, on a fast machine, too.
  static constexpr int points = 200'000;

  bool shown(const char* name) { return window->findChild<QWidget*>(name)->isVisible(); }
  std::string label(const char* name) { return window->findChild<QLabel*>(name)->text().toStdString(); }
  std::string tool_tip(const char* name, GridCell cell) {
    QWidget* viewport = grid(name).viewport();
    const QPoint place = cell_rect(name, cell).center();
    QHelpEvent event(QEvent::ToolTip, place, viewport->mapToGlobal(place));
    QApplication::sendEvent(viewport, &event);
    return QToolTip::text().toStdString();
  }
  /// Points that tell of themselves one by one, so that the sums show themselves and can be broken.
  void make_sums_long() {
    for (int k1 = 0; k1 < points; ++k1) lmap().set(Lk::at(0, 0, k1), cotyp(1, 1, 0, 1));
    workbench().document.cph.setkmi_1("Sums_EntryCountPerDisplay", 1);
  }
  void choose_tab_and_break(int page) {
    const DuringOperation during(*window, [this] {
      QTest::mouseClick(window->findChild<QWidget*>("BreakBox")->findChild<QPushButton*>(), Qt::LeftButton);
    });
    choose_tab(page);
  }
  /// The squares of the points leave the finite numbers.
  void set_too_large() { lmap().set(Lk::at(0, 0, 0), cotyp::floating(1e200, 0)); }
};

TEST_F(SumsTabs, TheHintOfTheRangeTableIsItsToolTip) {
  start();
  choose_tab(4);
  workbench().document.cph.setkmi_1("Sums1_SumUp_at_once", 1);
  click("Slds1", {1, 2}, Qt::RightButton);
  press(Qt::Key_Return);
  ASSERT_FALSE(shown("GroupBox_Modify_Range"));
  EXPECT_EQ(tool_tip("Slds1", {1, 2}), "Press right mouse button \nto activate the Modify Range Menu ");
}

TEST_F(SumsTabs, ABrokenSumLeavesItsLabelInPlaceOfTheResults) {
  start();
  make_sums_long();
  choose_tab_and_break(4);
  EXPECT_FALSE(shown("Slsums1"));
  EXPECT_TRUE(shown("Sums1Label"));
  EXPECT_EQ(label("Sums1Label"), " Double cl\u00edck on table \n or close this menu \n to sum up ");
  workbench().document.cph.setkmi_1("Sums_EntryCountPerDisplay", 10'000);
  click("Slds1", {1, 4}, Qt::LeftButton, true);
  EXPECT_TRUE(shown("Slsums1"));
  EXPECT_FALSE(shown("Sums1Label"));
}

TEST_F(SumsTabs, ABrokenSums2LeavesItsLabelInPlaceOfTheGrid) {
  start();
  make_sums_long();
  choose_tab_and_break(5);
  EXPECT_FALSE(shown("Slsums2"));
  EXPECT_TRUE(shown("Sums2Label"));
  EXPECT_EQ(label("Sums2Label"), " Creating Sums2 was stopped by Break ");
}

TEST_F(SumsTabs, ANumericErrorLeavesTheDisplayOfSums1) {
  start();
  choose_tab(4);
  const std::string count = text("Slsums1", {3, 1});
  set_too_large();
  lmap().set(Lk::at(0, 0, 1), cotyp(1, 1, 0, 1));
  const CloseMessage message;
  press(Qt::Key_Return);
  EXPECT_EQ(message.text.find(" MathError when creating Sums1: \n"), 0u);
  EXPECT_EQ(text("Slsums1", {3, 1}), count);
  EXPECT_TRUE(shown("Slsums1"));
}

TEST_F(SumsTabs, ANumericErrorStandsInPlaceOfSums2) {
  start();
  set_too_large();
  const CloseMessage message;
  choose_tab(5);
  EXPECT_EQ(message.text.find(" MathError during creating Sums2: \n"), 0u);
  EXPECT_FALSE(shown("Slsums2"));
  EXPECT_TRUE(shown("Sums2Label"));
  EXPECT_EQ(label("Sums2Label"), message.text);
}

}  // namespace
}  // namespace kov
