#include "widgets/window_user.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QtTest>
#include <thread>

#include "pages/modal.h"
#include "widgets/input_box.h"
#include "widgets/progress_group.h"

namespace kov {
namespace {

using std::chrono::milliseconds;

class WindowUserTest : public ::testing::Test {
 protected:
  QMainWindow window;
  QWidget* page = new QWidget;
  QLineEdit* line = new QLineEdit;
  ProgressGroup* group = new ProgressGroup;
  WindowUser user{window, *group};
  std::vector<std::string> captions;
  std::vector<bool> locks;
  std::vector<std::optional<OperationTime>> times;
  int beeps = 0;

  void SetUp() override {
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(line);
    auto* frame = new QWidget;
    auto* outer = new QVBoxLayout(frame);
    outer->addWidget(page);
    outer->addWidget(group);
    window.setCentralWidget(frame);
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    line->setFocus();
    user.set_hooks({[this](const std::string& text) { captions.push_back(text); },
                    [this](bool locked) {
                      locks.push_back(locked);
                      page->setEnabled(!locked);
                    },
                    [this](const std::optional<OperationTime>& time) { times.push_back(time); },
                    [this] { ++beeps; }});
  }

  /// Goes on until the operation is shown, for a second at most.
  void wait_until_shown() {
    QElapsedTimer clock;
    clock.start();
    while (!group->isVisible() && clock.elapsed() < 1000) user.breathe();
  }
  /// Checks as an operation does, for so long or until Break.
  bool run(milliseconds time) {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < time.count()) {
      if (user.break_requested()) return true;
    }
    return false;
  }
  QPushButton& button() { return *group->findChild<QPushButton*>(); }
};

TEST_F(WindowUserTest, ShortOperationsShowNothing) {
  {
    ProgressBox box(user, 0, 10);
    box.at(5);
    EXPECT_FALSE(user.break_requested());
    EXPECT_FALSE(group->isVisible());
  }
  EXPECT_TRUE(locks.empty());
  EXPECT_TRUE(times.empty());
}

TEST_F(WindowUserTest, LongOperationsShowTheirProgressAndLockTheWindow) {
  {
    ProgressBox box(user, -100, 300);
    wait_until_shown();
    ASSERT_TRUE(group->isVisible());
    EXPECT_EQ(locks, std::vector<bool>{true});
    box.at(200);
    run(milliseconds(60));
    EXPECT_EQ(group->findChild<QGroupBox*>("ProgressBox")->title().toStdString(), " Progress");
    const auto* bar = group->findChild<QProgressBar*>();
    EXPECT_EQ(100 * bar->value() / bar->maximum(), 75);
  }
  EXPECT_FALSE(group->isVisible());
  EXPECT_EQ(locks, (std::vector<bool>{true, false}));
  EXPECT_EQ(QApplication::focusWidget(), line);
}

TEST_F(WindowUserTest, TheFocusGoesToWhatAHiddenWidgetWasIn) {
  page->setFocusPolicy(Qt::StrongFocus);
  {
    const ProgressBox box(user, 0, 10);
    wait_until_shown();
    line->hide();
  }
  EXPECT_EQ(QApplication::focusWidget(), page);
}

TEST_F(WindowUserTest, TellsElapsedAndRemainingTime) {
  ProgressBox box(user, 0, 400);
  wait_until_shown();
  ASSERT_FALSE(times.empty());
  ASSERT_TRUE(times.back());
  EXPECT_GE(times.back()->elapsed, WindowUser::appears_after);
  EXPECT_EQ(times.back()->remaining, std::nullopt);
  box.at(100);
  run(milliseconds(60));
  ASSERT_TRUE(times.back() && times.back()->remaining);
  EXPECT_NEAR(static_cast<double>(times.back()->remaining->count()),
              3.0 * static_cast<double>(times.back()->elapsed.count()), 3.0);
  const auto before = *times.back()->remaining;
  {
    ProgressBox inner(user, 0, 7);  // the time goes by the outer one
    run(milliseconds(60));
    EXPECT_GT(*times.back()->remaining, before);
  }
  user.close();
  EXPECT_EQ(times.back(), std::nullopt);
}

TEST_F(WindowUserTest, ABoxInsideIsNotTheOneThatTheTimeGoesBy) {
  const ProgressBox outer(user, 0, 400);
  ProgressBox inner(user, 0, 400);  // looks the same
  inner.at(300);
  wait_until_shown();
  ASSERT_FALSE(times.empty());
  EXPECT_EQ(times.back()->remaining, std::nullopt);
  const auto* bar = group->findChild<QProgressBar*>();
  EXPECT_EQ(100 * bar->value() / bar->maximum(), 75);
}

/// A read knows only on the way how many points there are.
TEST_F(WindowUserTest, TheTimeGoesByTheOutermostBoxThatHasAWay) {
  const ProgressBox outer(user, 0, 0);
  wait_until_shown();
  EXPECT_EQ(times.back()->remaining, std::nullopt);
  {
    ProgressBox inner(user, 0, 400);
    inner.at(100);
    run(milliseconds(60));
    ASSERT_TRUE(times.back()->remaining);
    EXPECT_NEAR(static_cast<double>(times.back()->remaining->count()),
                3.0 * static_cast<double>(times.back()->elapsed.count()), 3.0);
    inner.at(50);  // a second pass
    run(milliseconds(60));
    EXPECT_NEAR(static_cast<double>(times.back()->remaining->count()),
                3.0 * static_cast<double>(times.back()->elapsed.count()), 3.0);
  }
  ProgressBox other(user, 0, 100);
  run(milliseconds(60));
  EXPECT_EQ(times.back()->remaining, std::nullopt);
}

TEST_F(WindowUserTest, ThePanelIsGreyForAScope) {
  const QColor own = group->palette().color(QPalette::Window);
  const ProgressBox box(user, 0, 10);
  {
    const GreyPanel grey(user);
    wait_until_shown();
    EXPECT_EQ(group->palette().color(QPalette::Window), QColor(128, 128, 128));
  }
  EXPECT_EQ(group->palette().color(QPalette::Window), own);
}

TEST_F(WindowUserTest, EscIsAnsweredAtOnceAndDoesNotMeetTheNextOperation) {
  {
    const ProgressBox box(user, 0, 10);
    wait_until_shown();
    QTimer::singleShot(0, &window, [this] { QTest::keyClick(&window, Qt::Key_Escape); });
    EXPECT_TRUE(run(milliseconds(2000)));
  }
  const ProgressBox box(user, 0, 10);
  EXPECT_FALSE(run(milliseconds(200)));
}

TEST_F(WindowUserTest, EscInAnotherWindowIsBreakToo) {
  QLineEdit other;
  other.show();
  QApplication::setActiveWindow(&other);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  const ProgressBox box(user, 0, 10);
  wait_until_shown();
  QTimer::singleShot(0, &window, [&] { QTest::keyClick(&other, Qt::Key_Escape); });
  EXPECT_TRUE(run(milliseconds(2000)));
}

TEST_F(WindowUserTest, BreakIsAnsweredAtOnce) {
  const ProgressBox box(user, 0, 10);
  wait_until_shown();
  bool pressed = false;
  QTimer::singleShot(40, &window, [&] {
    pressed = true;
    QTest::mouseClick(&button(), Qt::LeftButton);
  });
  EXPECT_TRUE(run(milliseconds(2000)));
  ASSERT_TRUE(pressed);
  EXPECT_TRUE(button().parentWidget()->isHidden());
  EXPECT_TRUE(user.break_requested());
}

TEST_F(WindowUserTest, BreakEndsTheOperationBehindOneWhoseReactingFailed) {
  bool fails = true;
  WindowUser::Hooks hooks;
  hooks.time = [&](const std::optional<OperationTime>& time) {
    if (time && fails) throw std::bad_alloc();
  };
  user.set_hooks(std::move(hooks));
  {
    const ProgressBox box(user, 0, 10);
    EXPECT_THROW(run(milliseconds(2000)), std::bad_alloc);
  }
  fails = false;
  const ProgressBox box(user, 0, 10);
  QTimer::singleShot(0, &window, [&] { QTest::mouseClick(&button(), Qt::LeftButton); });
  EXPECT_TRUE(run(milliseconds(2000)));
}

TEST_F(WindowUserTest, BreakOfOneOperationDoesNotMeetTheNext) {
  {
    const ProgressBox box(user, 0, 10);
    wait_until_shown();
    button().click();
  }
  const ProgressBox box(user, 0, 10);
  wait_until_shown();
  EXPECT_FALSE(user.break_requested());
  EXPECT_TRUE(button().isVisible());
}

TEST_F(WindowUserTest, NothingButBreakHearsKeysAndMouse) {
  user.set_hooks({});  // with no help from the window
  int triggered = 0;
  QAction action;
  action.setShortcut(QKeySequence("Ctrl+A"));
  QObject::connect(&action, &QAction::triggered, [&] { ++triggered; });
  window.addAction(&action);
  const ProgressBox box(user, 0, 10);
  wait_until_shown();
  int acted = 0;
  QTimer::singleShot(0, &window, [&] {
    ++acted;
    QTest::keyClicks(line, "x");
    QTest::keyClick(&window, Qt::Key_A, Qt::ControlModifier);
    window.close();
  });
  run(milliseconds(60));
  EXPECT_EQ(acted, 1);
  EXPECT_EQ(line->text().toStdString(), "");
  EXPECT_EQ(triggered, 0);
  EXPECT_TRUE(window.isVisible());
  user.close();
  QTest::keyClicks(line, "x");
  QTest::keyClick(&window, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(line->text().toStdString(), "x");
  EXPECT_EQ(triggered, 1);
}

TEST_F(WindowUserTest, ReactsOnlyOnceAtATime) {
  const ProgressBox box(user, 0, 10);
  wait_until_shown();
  bool reacting = false;
  int fired = 0;
  QTimer::singleShot(0, &window, [&] {
    reacting = true;
    QTimer::singleShot(0, &window, [&] {
      EXPECT_FALSE(reacting);
      ++fired;
    });
    std::this_thread::sleep_for(milliseconds(30));
    user.breathe();
    reacting = false;
  });
  run(milliseconds(150));
  EXPECT_EQ(fired, 1);
}

TEST_F(WindowUserTest, BreathingWithoutAnOperationDoesNothing) {
  int fired = 0;
  QTimer::singleShot(0, &window, [&] { ++fired; });
  std::this_thread::sleep_for(milliseconds(60));
  user.breathe();
  EXPECT_EQ(fired, 0);
}

TEST_F(WindowUserTest, BoundsMayBeAnyIntegers) {
  ProgressBox box(user, INT64_MIN, INT64_MAX);
  wait_until_shown();
  box.at(0);
  run(milliseconds(60));
  const auto* bar = group->findChild<QProgressBar*>();
  EXPECT_EQ(100 * bar->value() / bar->maximum(), 50);
}

TEST_F(WindowUserTest, CaptionsGoToTheHookOrTheTitle) {
  user.headline("lattice point 1 of 2 summed up");
  user.set_caption("nlast = 3");
  EXPECT_EQ(captions, (std::vector<std::string>{"lattice point 1 of 2 summed up", "nlast = 3"}));
  user.set_hooks({});
  user.set_caption("kov");
  EXPECT_EQ(window.windowTitle().toStdString(), "kov");
}

TEST_F(WindowUserTest, MessagesAndQuestionsAreBoxes) {
  {
    const OnModal<QMessageBox> person([&](QMessageBox& box) {
      EXPECT_EQ(box.text().toStdString(), "wrong");
      EXPECT_EQ(beeps, 1);
      EXPECT_EQ(box.parentWidget(), &window);
      QTest::keyClick(&box, Qt::Key_Return);
    });
    user.error("wrong");
  }
  {
    const OnModal<QMessageBox> person([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
    EXPECT_TRUE(user.yes_no("Really?"));
  }
  user.remark("not at this level");
}

TEST_F(WindowUserTest, ARefusedInputBeeps) {
  const OnModal<InputBox> person([](InputBox& box) {
    auto* input = box.findChild<QLineEdit*>();
    QTest::keyClick(input, Qt::Key_Return);
    QTest::keyClicks(input, "2");
    QTest::keyClick(input, Qt::Key_Return);
  });
  EXPECT_EQ(user.input({"c", "p", "1"}, [](const std::string& text) { return text == "2"; }), "2");
  EXPECT_EQ(beeps, 1);
}

}  // namespace
}  // namespace kov
