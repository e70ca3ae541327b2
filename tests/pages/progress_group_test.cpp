#include "widgets/progress_group.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

namespace kov {
namespace {

class ProgressGroupTest : public ::testing::Test {
 protected:
  ProgressGroup group;

  QGroupBox& progress_box() { return *group.findChild<QGroupBox*>("ProgressBox"); }
  QGroupBox& break_box() { return *group.findChild<QGroupBox*>("BreakBox"); }
  QPushButton& button() { return *group.findChild<QPushButton*>(); }
  int percent() {
    const auto* bar = group.findChild<QProgressBar*>();
    return 100 * bar->value() / bar->maximum();
  }
};

TEST_F(ProgressGroupTest, ShowsTitleAndProgress) {
  EXPECT_TRUE(group.isHidden());
  group.start();
  EXPECT_TRUE(progress_box().isVisible());
  EXPECT_TRUE(break_box().isVisible());
  EXPECT_EQ(percent(), 0);
  group.show_progress("Algadd Progress", 0.5);
  EXPECT_EQ(progress_box().title().toStdString(), "Algadd Progress");
  EXPECT_EQ(percent(), 50);
  group.show_progress("Algadd Progress", 7);
  EXPECT_EQ(percent(), 100);
  group.stop();
  EXPECT_TRUE(group.isHidden());
}

TEST(ProgressGroupInAPanel, HasItsHeightFromItsFirstMoment) {
  QWidget panel;
  auto* group = new ProgressGroup;
  (new QVBoxLayout(&panel))->addWidget(group);
  panel.show();
  group->start();
  group->show_progress(" Progress", 0.1);
  const int height = panel.sizeHint().height();
  QCoreApplication::processEvents();
  EXPECT_EQ(panel.sizeHint().height(), height);
}

TEST_F(ProgressGroupTest, BreakHidesItsBoxAndIsTakenOnce) {
  group.start();
  EXPECT_EQ(button().text().toStdString(), "Break");
  EXPECT_TRUE(break_box().isAncestorOf(&button()));
  EXPECT_FALSE(group.take_break());
  const int width = progress_box().width();
  QTest::mouseClick(&button(), Qt::LeftButton);
  EXPECT_TRUE(break_box().isHidden());
  EXPECT_TRUE(progress_box().isVisible());
  QCoreApplication::processEvents();
  EXPECT_EQ(progress_box().width(), width);
  EXPECT_TRUE(group.take_break());
  EXPECT_FALSE(group.take_break());
  group.start();
  EXPECT_TRUE(break_box().isVisible());
}

TEST_F(ProgressGroupTest, ANewOperationStartsUnpressed) {
  group.start();
  button().click();
  group.stop();
  EXPECT_FALSE(group.take_break());
  group.start();
  button().click();
  group.start();
  EXPECT_FALSE(group.take_break());
}

TEST_F(ProgressGroupTest, EscPressesBreakAndHeldKeysDoNot) {
  group.start();
  QApplication::setActiveWindow(&group);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&group));
  QWidget* focus = QApplication::focusWidget() == nullptr ? &group : QApplication::focusWidget();
  QTest::keyClick(focus, Qt::Key_Space);
  QTest::keyClick(focus, Qt::Key_Tab);
  focus = QApplication::focusWidget() == nullptr ? &group : QApplication::focusWidget();
  QTest::keyClick(focus, Qt::Key_Space);
  EXPECT_FALSE(group.take_break());
  QTest::keyClick(&group, Qt::Key_Escape);
  EXPECT_TRUE(group.take_break());
  EXPECT_TRUE(break_box().isHidden());
}

TEST_F(ProgressGroupTest, EscPressesBreakInWhateverWindowItIsStruck) {
  QLineEdit other;
  other.show();
  QApplication::setActiveWindow(&other);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  QTest::keyClick(&other, Qt::Key_Escape);
  EXPECT_FALSE(group.take_break());
  group.start();
  QTest::keyClick(&other, Qt::Key_Escape);
  EXPECT_TRUE(group.take_break());
  group.stop();
  QTest::keyClick(&other, Qt::Key_Escape);
  EXPECT_FALSE(group.take_break());
}

TEST_F(ProgressGroupTest, EscThatIsHeldDownPressesNothing) {
  group.start();
  QApplication::setActiveWindow(&group);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&group));
  for (const bool repeated : {true, false}) {
    qt_sendShortcutOverrideEvent(&group, 0, Qt::Key_Escape, Qt::NoModifier, QString(), repeated);
    EXPECT_EQ(group.take_break(), !repeated);
  }
}

TEST_F(ProgressGroupTest, IsGreyAndHasItsColourBack) {
  const QColor own = group.palette().color(QPalette::Window);
  ASSERT_NE(own, QColor(128, 128, 128));
  group.start();
  group.show_grey(true);
  group.show_grey(true);
  EXPECT_EQ(group.palette().color(QPalette::Window), QColor(128, 128, 128));
  EXPECT_EQ(group.grab().toImage().pixelColor(0, 0), QColor(128, 128, 128));
  group.show_grey(false);
  EXPECT_EQ(group.palette().color(QPalette::Window), own);
  EXPECT_NE(group.grab().toImage().pixelColor(0, 0), QColor(128, 128, 128));
}

}  // namespace
}  // namespace kov
