#include <gtest/gtest.h>

#include <QAction>

#include "pages/grid_desk.h"

namespace kov {
namespace {

class GridEditing : public GridDesk {};

/// What the frame of an editor is painted with.
QRgb frame_of(QWidget& editor) { return editor.grab().toImage().pixel(editor.width() / 2, 0); }

TEST_F(GridEditing, TheFrameOfTheEditorTellsWhereTheKeysGo) {
  model.shows_editor = true;
  open();
  ASSERT_TRUE(editor().hasFocus());
  const QPalette& palette = editor().palette();
  EXPECT_EQ(frame_of(editor()), palette.color(QPalette::Highlight).rgb());
  EXPECT_EQ(editor().selectedText(), "101");
  neighbour->setFocus();
  EXPECT_EQ(frame_of(editor()), palette.color(QPalette::Mid).rgb());
  model.typed[{1, 1}] = "5";
  model.changed();
  EXPECT_EQ(editor().text(), "5");
  EXPECT_EQ(editor().selectedText(), "");
}

TEST_F(GridEditing, TypingOpensTheEditorAndReplacesTheText) {
  open();
  EXPECT_FALSE(editor().isVisible());
  type("12");
  EXPECT_TRUE(editor().isVisible());
  EXPECT_EQ(editor().text(), "12");
  EXPECT_EQ(model.editor_text(), "12");
  EXPECT_EQ(model.events, (Events{"key 1", "key 2"}));
  press(Qt::Key_Down);
  EXPECT_EQ(model.events, (Events{"key 1", "key 2", "key Down", "take 1,1 12"}));
  EXPECT_EQ(index({1, 1}).data().toString(), "12");
  EXPECT_FALSE(editor().isVisible());
  EXPECT_EQ(current(), (GridCell{1, 2}));
  EXPECT_TRUE(grid->hasFocus());
}

TEST_F(GridEditing, KeysOfTheModelActFromTheOpenEditorToo) {
  open();
  type("1x");
  EXPECT_EQ(editor().text(), "1");
  type("G");
  EXPECT_EQ(current(), (GridCell{5, 7}));
  EXPECT_EQ(model.events, (Events{"key 1", "key x", "key G"}));
}

TEST_F(GridEditing, EnterTakesTheEdit) {
  open();
  type("7");
  press(Qt::Key_Return);
  EXPECT_EQ(model.events.back(), "take 1,1 7");
  EXPECT_FALSE(editor().isVisible());
}

TEST_F(GridEditing, EnterIsTheModelsIfItWantsIt) {
  model.takes_enter = true;
  open();
  type("7");
  press(Qt::Key_Return);
  EXPECT_EQ(model.events.back(), "key Enter");
  EXPECT_TRUE(editor().isVisible());
}

TEST_F(GridEditing, EscGivesTheEditUp) {
  open();
  type("7");
  press(Qt::Key_Escape);
  EXPECT_FALSE(editor().isVisible());
  EXPECT_FALSE(model.edited());
  press(Qt::Key_Down);
  EXPECT_EQ(model.events, (Events{"key 7", "key Esc", "key Down"}));
}

TEST_F(GridEditing, ARefusedTextIsUndone) {
  model.shows_editor = true;
  open();
  type("99");
  press(Qt::Key_Return);
  EXPECT_EQ(model.events.back(), "take 1,1 99");
  EXPECT_EQ(editor().text(), "101");
  EXPECT_EQ(editor().selectedText(), "101");
}

TEST_F(GridEditing, F2AndDoubleClickOpenWithTheText) {
  open();
  press(Qt::Key_F2);
  EXPECT_TRUE(editor().isVisible());
  EXPECT_EQ(editor().text(), "101");
  EXPECT_FALSE(model.edited());
  press(Qt::Key_Escape);
  EXPECT_FALSE(editor().isVisible());
  QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, place({2, 2}));
  EXPECT_TRUE(editor().isVisible());
  EXPECT_EQ(editor().text(), "202");
  press(Qt::Key_Escape);
  grid->set_opens_on_double_click(false);
  QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, place({3, 3}));
  EXPECT_FALSE(editor().isVisible());
}

TEST_F(GridEditing, F2LeadsIntoTheTextAlsoInTheOpenEditor) {
  open();
  for (const bool always : {false, true}) {
    model.shows_editor = always;
    model.changed();
    ASSERT_EQ(editor().isVisible(), always);
    press(Qt::Key_F2);
    EXPECT_FALSE(editor().hasSelectedText());
    EXPECT_EQ(editor().cursorPosition(), 3);
    press(Qt::Key_Left);
    EXPECT_EQ(editor().cursorPosition(), 2);
    press(Qt::Key_Right);
    EXPECT_EQ(model.selected(), (GridCell{1, 1}));
    type("5");
    EXPECT_EQ(editor().text(), "1015");
    press(Qt::Key_Escape);
  }
}

TEST_F(GridEditing, WhatAnInputMethodComposesIsKeysToo) {
  model.shows_editor = true;
  open();
  const auto compose = [&](const char* text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(&editor(), &event);
  };
  compose("P");
  EXPECT_EQ(model.typed.at({1, 1}), "102");
  compose("7x8");
  EXPECT_EQ(editor().text(), "78");
  EXPECT_EQ(model.editor_text(), "78");
  EXPECT_EQ(model.events, (Events{"key P", "key 7", "key x", "key 8"}));
  compose("\u00e4");
  EXPECT_EQ(editor().text(), "78");
}

TEST_F(GridEditing, ATextThatCannotBeStoredStaysAndIsStoredLater) {
  open();
  model.fails_to_store = true;
  type("7");
  press(Qt::Key_Return);
  EXPECT_EQ(messages.shown, (std::vector<RecordedMessage>{{MessageKind::error, "Not enough memory."}}));
  EXPECT_EQ(editor().text(), "7");
  EXPECT_TRUE(model.edited());
  press(Qt::Key_Down);
  click({3, 3});
  EXPECT_EQ(messages.shown.size(), 3u);
  EXPECT_EQ(current(), (GridCell{1, 1}));
  EXPECT_EQ(grid->selectionModel()->selectedIndexes(), QModelIndexList{index({1, 1})});
  EXPECT_EQ(editor().text(), "7");
  EXPECT_EQ(editor().geometry(), grid->visualRect(index({1, 1})));
  model.fails_to_store = false;
  click({2, 2});
  EXPECT_EQ(model.typed.at({1, 1}), "7");
  EXPECT_EQ(current(), (GridCell{2, 2}));
  EXPECT_EQ(model.selected(), (GridCell{2, 2}));
  EXPECT_EQ(messages.shown.size(), 3u);
}

TEST_F(GridEditing, WhatCouldNotBeFollowedIsFollowedLater) {
  open();
  model.during_key = [&] { model.failing_texts = 1; };
  type("G");
  EXPECT_EQ(messages.texts(), std::vector<std::string>{"Not enough memory."});
  EXPECT_EQ(model.selected(), (GridCell{5, 7}));
  QApplication::processEvents();
  EXPECT_EQ(current(), (GridCell{5, 7}));
}

TEST_F(GridEditing, TellsWhetherAnEditIsUnderWay) {
  open();
  std::vector<bool> told;
  QObject::connect(grid, &StringGrid::edit_under_way_changed, [&](bool on) { told.push_back(on); });
  press(Qt::Key_F2);
  EXPECT_TRUE(told.empty());
  press(Qt::Key_Escape);
  type("12");
  EXPECT_EQ(told, std::vector<bool>{true});
  press(Qt::Key_Escape);
  EXPECT_EQ(told, (std::vector<bool>{true, false}));
  press(Qt::Key_F2);
  type("3");
  EXPECT_EQ(told.size(), 3u);
  press(Qt::Key_Down);
  EXPECT_EQ(told, (std::vector<bool>{true, false, true, false}));
}

TEST_F(GridEditing, BackspaceAndDeleteEmptyTheText) {
  open();
  press(Qt::Key_Backspace);
  EXPECT_EQ(model.editor_text(), "");
  EXPECT_EQ(model.events, (Events{"key Backspace"}));
  press(Qt::Key_Escape);
  press(Qt::Key_Delete);
  EXPECT_TRUE(model.edited());
  EXPECT_EQ(editor().text(), "");
}

TEST_F(GridEditing, ReadOnlyCellsHaveNoEditor) {
  model.shows_editor = true;
  open();
  grid->setCurrentIndex(index({4, 1}));
  EXPECT_FALSE(editor().isVisible());
  type("1");
  press(Qt::Key_F2);
  press(Qt::Key_Delete);
  EXPECT_FALSE(editor().isVisible());
  EXPECT_FALSE(model.edited());
}

TEST_F(GridEditing, TheEditorIsAlwaysThereWhereTheModelSaysSo) {
  model.shows_editor = true;
  open();
  EXPECT_TRUE(editor().isVisible());
  EXPECT_TRUE(editor().hasFocus());
  EXPECT_EQ(editor().geometry(), grid->visualRect(index({1, 1})));
  press(Qt::Key_Tab);
  EXPECT_EQ(editor().geometry(), grid->visualRect(index({2, 1})));
  EXPECT_EQ(editor().selectedText(), "201");
  EXPECT_TRUE(editor().hasFocus());
  type("5");
  EXPECT_EQ(editor().text(), "5");
  click({3, 3});
  EXPECT_EQ(model.events, (Events{"key Tab", "key 5", "take 2,1 5", "left 3,3"}));
  EXPECT_EQ(editor().text(), "303");
}

TEST_F(GridEditing, TheEditorShowsWhatAKeyOfTheModelDid) {
  model.shows_editor = true;
  open();
  type("P");
  EXPECT_EQ(editor().text(), "102");
  EXPECT_EQ(editor().selectedText(), "102");
}

TEST_F(GridEditing, SidewaysKeysMoveInTheTextAndOutOfItAtItsEnds) {
  model.shows_editor = true;
  open();
  press(Qt::Key_Right);
  EXPECT_EQ(model.selected(), (GridCell{2, 1}));
  type("12");
  press(Qt::Key_Left);
  EXPECT_EQ(model.selected(), (GridCell{2, 1}));
  EXPECT_EQ(editor().cursorPosition(), 1);
  press(Qt::Key_Right);
  press(Qt::Key_Right);
  EXPECT_EQ(model.selected(), (GridCell{3, 1}));
  EXPECT_EQ(model.typed.at({2, 1}), "12");
}

TEST_F(GridEditing, TheEditorFollowsScrollingAndWidths) {
  model.rows = 100;
  model.shows_editor = true;
  open();
  grid->setCurrentIndex(index({2, 5}));
  grid->setColumnWidth(0, 200);
  EXPECT_EQ(editor().geometry(), grid->visualRect(index({2, 5})));
  grid->scrollToBottom();
  EXPECT_EQ(editor().geometry(), grid->visualRect(index({2, 5})));
  EXPECT_LT(editor().y(), 0);
}

TEST_F(GridEditing, LeavingTheGridTakesTheEdit) {
  open();
  type("7");
  neighbour->setFocus();
  EXPECT_EQ(model.events.back(), "take 1,1 7");
  EXPECT_FALSE(editor().isVisible());
  grid->setFocus();
  type("8");
  grid->hide();
  EXPECT_EQ(model.events.back(), "take 1,1 8");
}

TEST_F(GridEditing, ALockIsNoLeaving) {
  open();
  type("7");
  grid->setEnabled(false);
  neighbour->setFocus();
  grid->setEnabled(true);
  EXPECT_TRUE(model.edited());
  grid->take_edit();
  EXPECT_EQ(model.events.back(), "take 1,1 7");
}

TEST_F(GridEditing, TheEditorsMouseIsTheGrids) {
  model.shows_editor = true;
  open();
  click({1, 1});
  click({1, 1}, Qt::RightButton);
  QTest::mouseDClick(&editor(), Qt::LeftButton);
  EXPECT_EQ(model.events, (Events{"left 1,1", "right 1,1", "double 1,1"}));
}

TEST_F(GridEditing, ADragOutOfTheEditorMarksCells) {
  model.shows_editor = true;
  open();
  grid->setCurrentIndex(index({2, 2}));
  QTest::mousePress(&editor(), Qt::LeftButton);
  QMouseEvent drag(QEvent::MouseMove, editor().mapFrom(grid->viewport(), place({1, 4})),
                   grid->viewport()->mapToGlobal(place({1, 4})), Qt::NoButton, Qt::LeftButton, {});
  QApplication::sendEvent(&editor(), &drag);
  EXPECT_EQ(grid->selected_text(), "102\t202\n103\t203\n104\t204");
  EXPECT_EQ(model.selected(), (GridCell{2, 2}));
}

TEST_F(GridEditing, CtrlCCopiesAMarkedPartOfTheText) {
  model.shows_editor = true;
  open();
  editor().setSelection(1, 2);
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard(), "01");
  press(Qt::Key_Down, Qt::ShiftModifier);
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard(), "101\n102");
}

TEST_F(GridEditing, CtrlVPastes) {
  open();
  QApplication::clipboard()->setText("55");
  press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(model.editor_text(), "55");
  press(Qt::Key_Return);
  EXPECT_EQ(model.events.back(), "take 1,1 55");
}

/// Every shortcut of the menus that Qt's text widgets would like to take for themselves.
class MenuKeys : public GridDesk, public ::testing::WithParamInterface<int> {};

TEST_P(MenuKeys, StayTheMenusFromTheGridAndItsEditor) {
  open();
  int triggered = 0;
  QAction action;
  action.setShortcut(QKeySequence(Qt::ControlModifier | static_cast<Qt::Key>(GetParam())));
  QObject::connect(&action, &QAction::triggered, [&] { ++triggered; });
  window.addAction(&action);
  press(static_cast<Qt::Key>(GetParam()), Qt::ControlModifier);
  EXPECT_EQ(triggered, 1);
  type("12");
  ASSERT_TRUE(editor().hasFocus());
  editor().selectAll();
  press(static_cast<Qt::Key>(GetParam()), Qt::ControlModifier);
  EXPECT_EQ(triggered, 2);
  EXPECT_EQ(editor().text(), "12");
  EXPECT_EQ(model.events, (Events{"key 1", "key 2"}));
  window.removeAction(&action);
  press(static_cast<Qt::Key>(GetParam()), Qt::ControlModifier);
  EXPECT_EQ(editor().text(), "12");
}

INSTANTIATE_TEST_SUITE_P(Shortcuts, MenuKeys,
                         ::testing::Values(int(Qt::Key_X), int(Qt::Key_A), int(Qt::Key_Q), int(Qt::Key_Y),
                                           int(Qt::Key_D), int(Qt::Key_I), int(Qt::Key_R)));

}  // namespace
}  // namespace kov
