#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "app/kovu1.h"
#include "pages/modal.h"
#include "pages/print_cell.h"
#include "widgets/input_box.h"
#include "widgets/string_grid.h"

namespace kov {

/// The main window in a folder of its own, which holds a copy of the walk in the plane, and keys and mouse as
/// a person uses them.
class WindowDesk : public ::testing::Test {
 protected:
  std::unique_ptr<TF1> window;

  void SetUp() override {
    QCoreApplication::setOrganizationName("kov");
    QCoreApplication::setApplicationName("kov");
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder_.path());
    std::filesystem::current_path(folder());
    std::filesystem::copy_file(std::filesystem::path(KOV_SOURCE_DIR) / "examples" / "walk2d.aa1",
                               folder() / "walk2d.aa1");
  }
  void TearDown() override {
    window.reset();
    std::filesystem::current_path(before_);
    std::filesystem::remove_all(folder());  // Qt cannot remove a file whose name is no text
  }

  std::filesystem::path folder() const { return folder_.path().toStdString(); }

  void make(const std::vector<std::filesystem::path>& arguments) {
    window = std::make_unique<TF1>(arguments);
  }
  void start(const std::vector<std::filesystem::path>& arguments = {"walk2d.aa1"}) {
    make(arguments);
    window->show();
    QApplication::setActiveWindow(window.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  /// Ctrl+A, a short run of Algadd: steps 1 ... 10.
  void press_ctrl_a() {
    workbench().document.cph.setkmi_1("Algadd_DefaultStepCount", 10);
    press(Qt::Key_A, Qt::ControlModifier);
  }

  Workbench& workbench() { return window->workbench(); }
  Lmap& lmap() { return workbench().document.lmap; }

  /// An item of a menu or a button of a page's menu, as "MENU/ITEM".
  QAction* action(const char* name) {
    auto* found = window->findChild<QAction*>(name);
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  void trigger(const char* name) {
    QAction* item = action(name);
    ASSERT_TRUE(item != nullptr && item->isEnabled()) << name;
    item->trigger();
  }

  StringGrid& grid(const char* name) { return *window->findChild<StringGrid*>(name); }
  GridModel& model(const char* name) { return *window->pages().grid(name); }
  std::string text(const char* name, GridCell cell) { return model(name).text(cell); }

  void choose_tab(int index) {
    auto* bar = window->findChild<QTabWidget*>("PaCo")->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
  }
  int shown_tab() { return window->findChild<QTabWidget*>("PaCo")->currentIndex(); }

  /// Brings the cell into view.
  QRect cell_rect(const char* name, GridCell cell) {
    StringGrid& table = grid(name);
    const GridModel& cells = model(name);
    const QModelIndex index =
        table.model()->index(cell.row - cells.fixed_rows(), cell.column - cells.fixed_columns());
    table.scrollTo(index);
    return table.visualRect(index);
  }
  /// The widget under the cell's centre gets the mouse, be it the cell or its editor.
  void click(const char* name, GridCell cell, Qt::MouseButton button = Qt::LeftButton, bool twice = false) {
    QWidget* viewport = grid(name).viewport();
    const QPoint place = cell_rect(name, cell).center();
    QWidget* under = viewport->childAt(place);
    QWidget* target = under == nullptr ? viewport : under;
    const QPoint at = target->mapFrom(viewport, place);
    QTest::mouseClick(target, button, {}, at);
    if (twice) QTest::mouseDClick(target, button, {}, at);
  }
  static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  /// Each character goes where the keys are then: the first may open an editor, which gets the others.
  static void type(const char* keys) {
    for (; *keys != '\0'; ++keys) QTest::keyClick(QApplication::focusWidget(), *keys);
  }

  /// Works, and asks for Break, until the person has done something; at most for some seconds.
  void work_until(const bool& done) {
    const ProgressBox box(window->user().progress, 0, 10);
    QElapsedTimer clock;
    clock.start();
    while (!done && !window->user().progress.break_requested() && clock.elapsed() < 5000) {
    }
  }

  std::string caption() { return window->user().progress.caption(); }
  std::string title() { return window->windowTitle().toStdString(); }
  /// What a part of the status bar shows.
  std::string figure(const char* name) { return window->findChild<QLabel*>(name)->text().toStdString(); }

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
  QTemporaryDir folder_;
};

/// Answers the next input box with a text, or by Cancel.
class AnswerInput : public OnModal<InputBox> {
 public:
  explicit AnswerInput(const char* answer)
      : OnModal<InputBox>([this, answer](InputBox& box) {
          caption = box.windowTitle().toStdString();
          auto* line = box.findChild<QLineEdit*>();
          preset = line->text().toStdString();
          line->setText(answer);
          QTest::keyClick(line, Qt::Key_Return);
          refused = box.isVisible();
          if (refused) QTest::keyClick(line, Qt::Key_Escape);
        }) {}

  std::string caption;
  std::string preset;
  bool refused = false;
};

/// Closes the next message box by a key: Return takes the default button, Esc is No.
class CloseMessage : public OnModal<QMessageBox> {
 public:
  explicit CloseMessage(Qt::Key key = Qt::Key_Return)
      : OnModal<QMessageBox>([this, key](QMessageBox& box) {
          text = box.text().toStdString();
          QTest::keyClick(&box, key);
        }) {}

  std::string text;
};

}  // namespace kov
