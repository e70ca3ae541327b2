// What a person can do, and what not, while a long operation runs.
#include <QPushButton>
#include <fstream>

#include "app/kovus1.h"
#include "datafile/writer.h"
#include "pages/during_operation.h"
#include "pages/window_desk.h"

namespace kov {
namespace {

class LongOperation : public WindowDesk {
 protected:
  /// So many that an operation that tells of each of them shows itself.
  static constexpr int points = 200'000;

  std::unique_ptr<TUF1> user_window;

  void SetUp() override {
    WindowDesk::SetUp();
    start();
    user_window = std::make_unique<TUF1>(*window);
  }
  void TearDown() override {
    user_window.reset();
    WindowDesk::TearDown();
  }

  /// Points along k1 in the row 0, each 1.
  static Lmap row_of(int count) {
    Lmap row;
    for (int k1 = 0; k1 < count; ++k1) row.set(Lk::at(0, 0, k1), cotyp(1, 1, 0, 1));
    return row;
  }
  bool is_locked(const QMainWindow& shown) {
    return !shown.menuBar()->isEnabled() && !shown.centralWidget()->isEnabled();
  }
  /// Runs an operation of one's own until Break; whether Break was what ended it.
  bool runs_until_break() {
    bool never = false;
    bool broken = false;
    window->run_own("Mine", [&] {
      const ProgressBox box(window->user().progress, 0, 10);
      work_until(never);
      broken = window->user().progress.break_requested();
    });
    return broken;
  }
};

TEST_F(LongOperation, OfOnesOwnLocksBothWindowsAndBreakEndsIt) {
  trigger("Bar/US");
  bool seen = false;
  {
    const DuringOperation during(*window, [&] {
      seen = true;
      EXPECT_TRUE(is_locked(*window));
      EXPECT_TRUE(is_locked(*user_window));
      user_window->findChild<QAction*>("Cmd/Start Algus1")->trigger();  // would show a message
      user_window->close();
      EXPECT_TRUE(user_window->isVisible());
      QTest::mouseClick(window->findChild<QWidget*>("BreakBox")->findChild<QPushButton*>(), Qt::LeftButton);
    });
    EXPECT_TRUE(runs_until_break());
  }
  EXPECT_TRUE(seen);
  EXPECT_FALSE(is_locked(*window));
  EXPECT_FALSE(is_locked(*user_window));
}

TEST_F(LongOperation, EscInEitherWindowIsBreakForThisOperationAlone) {
  for (QMainWindow* in_front :
       {static_cast<QMainWindow*>(window.get()), static_cast<QMainWindow*>(user_window.get())}) {
    in_front->show();
    QApplication::setActiveWindow(in_front);
    ASSERT_TRUE(QTest::qWaitForWindowActive(in_front));
    {
      const DuringOperation during(*window, [&] { QTest::keyClick(in_front, Qt::Key_Escape); });
      EXPECT_TRUE(runs_until_break());
    }
    bool enough = false;
    bool broken = true;
    const DuringOperation next(*window,
                               [&] { QTimer::singleShot(150, window.get(), [&] { enough = true; }); });
    window->run_own("Mine", [&] {
      const ProgressBox box(window->user().progress, 0, 10);
      work_until(enough);
      broken = window->user().progress.break_requested();
    });
    EXPECT_TRUE(enough);
    EXPECT_FALSE(broken);
  }
}

TEST_F(LongOperation, Sums2IsHiddenWhileItIsBuilt) {
  choose_tab(5);
  ASSERT_TRUE(grid("Slsums2").isVisible());
  lmap() = row_of(points);
  workbench().document.cph.setkmi_1("Sums_EntryCountPerDisplay", 1);
  bool seen = false;
  const DuringOperation during(*window, [&] {
    seen = true;
    EXPECT_FALSE(grid("Slsums2").isVisible());
  });
  choose_tab(0);
  choose_tab(5);
  EXPECT_TRUE(seen);
  EXPECT_TRUE(grid("Slsums2").isVisible());
  EXPECT_TRUE(grid("Slsums2").hasFocus());
}

/// A read that shows itself, then asks about a line that is no point.
class LongRead : public LongOperation {
 protected:
  void write_file() {
    lmap() = row_of(points);
    workbench().document.cph.setkmi_1("File_IO_PointCountPerDisplay", 1);
    std::ofstream("long.aa1", std::ios::binary)
        << data_file_text(workbench().document, "long.aa1", WithLattices::yes, "") << "e_l no point\r\n";
    lmap().clear();
  }
  void read_it() { window->open_file(folder() / "long.aa1"); }
};

TEST_F(LongRead, AsksInTheMiddleOfAVisibleOperationAndGoesOn) {
  write_file();
  std::string question;
  {
    const OnModal<QMessageBox> person([&](QMessageBox& box) {
      question = box.text().toStdString();
      EXPECT_TRUE(is_locked(*window));
      EXPECT_TRUE(window->findChild<QWidget*>("ProgressBox")->isVisible());
      EXPECT_TRUE(box.isEnabled());
      QTest::keyClick(&box, Qt::Key_D, Qt::ControlModifier);
      window->open_file(folder() / "walk2d.aa1");
      box.button(QMessageBox::Yes)->click();
    });
    read_it();
  }
  EXPECT_NE(question.find("Do you want to proceed?"), std::string::npos);
  EXPECT_EQ(lmap().count(), std::size_t{points});
  EXPECT_EQ(workbench().file.name(), "long.aa1");
  EXPECT_FALSE(is_locked(*window));
}

TEST_F(LongRead, EscIsTheDialogsAsLongAsThereIsOne) {
  write_file();
  const CloseMessage person(Qt::Key_Escape);
  read_it();
  EXPECT_TRUE(lmap().empty());
  EXPECT_TRUE(workbench().file.read_aborted);
  EXPECT_FALSE(is_locked(*window));
}

}  // namespace
}  // namespace kov
