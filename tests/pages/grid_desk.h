#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QVBoxLayout>
#include <QtTest>

#include "pages/fake_grid.h"
#include "pages/print_cell.h"
#include "support/recording_messages.h"
#include "widgets/string_grid.h"

namespace kov {

using Events = std::vector<std::string>;

/// A window with a grid, a button to leave it for, and keys as a person presses them.
class GridDesk : public ::testing::Test {
 protected:
  FakeGrid model;
  RecordingMessages messages;
  QMainWindow window;
  StringGrid* grid = nullptr;
  QLineEdit* neighbour = nullptr;

  void open() {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    grid = new StringGrid(model, messages);
    neighbour = new QLineEdit;
    layout->addWidget(grid);
    layout->addWidget(neighbour);
    window.setCentralWidget(page);
    window.resize(700, 400);
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    grid->setFocus();
    model.events.clear();
  }

  QLineEdit& editor() { return *grid->viewport()->findChild<QLineEdit*>(); }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  /// The first key may open the editor, which then has the focus.
  void type(const char* text) {
    for (; *text != '\0'; ++text) QTest::keyClick(QApplication::focusWidget(), *text);
  }
  QModelIndex index(GridCell cell) const {
    return grid->model()->index(cell.row - model.fixed_rows(), cell.column - 1);
  }
  QPoint place(GridCell cell) const { return grid->visualRect(index(cell)).center(); }
  void click(GridCell cell, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {}) {
    QWidget* viewport = grid->viewport();
    QWidget* at = viewport->childAt(place(cell));
    QWidget* target = at == nullptr ? viewport : at;
    QTest::mouseClick(target, button, modifiers, target->mapFrom(viewport, place(cell)));
  }
  GridCell current() const {
    const QModelIndex index = grid->currentIndex();
    return {index.column() + 1, index.row() + model.fixed_rows()};
  }
  static std::string clipboard() { return QApplication::clipboard()->text().toStdString(); }
};

}  // namespace kov
