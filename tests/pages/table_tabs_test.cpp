#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

#include "pages/window_desk.h"
#include "widgets/qt_text.h"

namespace kov {
namespace {

/// The pages of tables, sums, comment and parameters in the window.
class TableTabs : public WindowDesk {
 protected:
  void press_button(const char* box, const char* text) {
    for (QPushButton* button : window->findChild<QGroupBox*>(box)->findChildren<QPushButton*>()) {
      if (button->text() != text) continue;
      ASSERT_TRUE(button->isVisible() && button->isEnabled()) << text;
      return QTest::mouseClick(button, Qt::LeftButton);
    }
    ADD_FAILURE() << "no button " << text;
  }
  bool shown(const char* name) { return window->findChild<QWidget*>(name)->isVisible(); }
  std::string label(const char* name) { return window->findChild<QLabel*>(name)->text().toStdString(); }
};

TEST_F(TableTabs, TheRightButtonShowsTheAlgaddMenu) {
  start();
  choose_tab(3);
  EXPECT_FALSE(shown("AlgaddMenu"));
  click("SlAlgadd", {2, 3}, Qt::RightButton);
  EXPECT_TRUE(shown("AlgaddMenu"));
  EXPECT_EQ(label("AlgaddSummary"), " Table 0   ( 0 empty in 0..0 ,    15 empty in 0..15 ) ");
  EXPECT_EQ(workbench().current_entry, 1);
}

TEST_F(TableTabs, TheAlgaddMenuHasAButtonForEachCommand) {
  start();
  choose_tab(3);
  std::vector<std::string> buttons;
  for (const QPushButton* button :
       window->findChild<QGroupBox*>("AlgaddMenu")->findChildren<QPushButton*>()) {
    buttons.push_back(button->text().toStdString());
  }
  EXPECT_EQ(buttons,
            (std::vector<std::string>{"CopyTable", "EraseTable", "MultiplyAll_p", "Mult_all_pabsnot1",
                                      "MultiplySelected_p", "SetSelected_p", "Select_p", "ChooseNr",
                                      "CopyEntry", "EraseEntry", "RemoveEntry", "RemoveTable", "InsertTable",
                                      "InsertEntry", "RenumberEntries", "RenumberTables", "Close"}));
}

TEST_F(TableTabs, AButtonOfTheAlgaddMenuActsAndHidesIt) {
  start();
  choose_tab(3);
  ASSERT_EQ(text("SlAlgadd", {2, 1}), "1/4");
  click("SlAlgadd", {2, 3}, Qt::RightButton);
  press_button("AlgaddMenu", "EraseEntry");
  EXPECT_EQ(text("SlAlgadd", {2, 1}), "0");
  EXPECT_FALSE(shown("AlgaddMenu"));
  EXPECT_TRUE(grid("SlAlgadd").hasFocus());
  click("SlAlgadd", {1, 3}, Qt::RightButton);
  press_button("AlgaddMenu", "Close");
  EXPECT_FALSE(shown("AlgaddMenu"));
}

TEST_F(TableTabs, FactorsAreShownInFull) {
  start();
  choose_tab(3);
  const int usual = grid("SlAlgadd").columnWidth(1);
  click("SlAlgadd", {2, 1});
  type("1/3333+2/7777i");
  press(Qt::Key_Return);
  EXPECT_GT(grid("SlAlgadd").columnWidth(1), usual);
  EXPECT_EQ(grid("SlAlgadd").columnWidth(2), usual);
}

TEST_F(TableTabs, QAndWTurnTables) {
  start();
  choose_tab(3);
  type("q");
  EXPECT_EQ(text("SlAlgadd", {0, 0}), "15=aanr");
  EXPECT_EQ(workbench().document.cph.kmi("Algadd_DefaultTableIndex"), 15);
  EXPECT_EQ(window->menuBar()->actions()[6]->text().remove('&'), "AA:15");
  type("w");
  EXPECT_EQ(text("SlAlgadd", {0, 0}), "0=aanr");
}

TEST_F(TableTabs, AnEntryIsTyped) {
  start();
  choose_tab(3);
  click("SlAlgadd", {7, 1});
  type("1/3");
  press(Qt::Key_Return);
  EXPECT_EQ(workbench().document.algadd.entry(0, 6).p, cotyp(1, 3, 0, 1));
}

TEST_F(TableTabs, Sums1SumsUpWhenItIsShown) {
  start();
  choose_tab(4);
  EXPECT_TRUE(shown("Slsums1"));
  EXPECT_FALSE(shown("GroupBox_Modify_Range"));
  EXPECT_FALSE(shown("Sums1Label"));
  EXPECT_EQ(text("Slsums1", {1, 1}), "1");
}

TEST_F(TableTabs, AllColumnsOfBothTablesAreInViewInANarrowWindow) {
  start();
  choose_tab(4);
  window->resize(1000, 700);
  QTest::qWait(0);
  const int usual = grid("Slds1").horizontalHeader()->defaultSectionSize();
  EXPECT_FALSE(grid("Slsums1").horizontalScrollBar()->isVisible());
  EXPECT_FALSE(grid("Slds1").horizontalScrollBar()->isVisible());
  EXPECT_LT(grid("Slds1").columnWidth(0), usual);
  window->resize(600, 700);
  QTest::qWait(0);
  EXPECT_EQ(grid("Slds1").columnWidth(3), usual * 3 / 4);
  window->resize(1300, 700);
  QTest::qWait(0);
  EXPECT_EQ(grid("Slds1").columnWidth(3), usual);
  EXPECT_FALSE(grid("Slds1").horizontalScrollBar()->isVisible());
}

TEST_F(TableTabs, TheRightButtonOpensTheModifyRangeMenu) {
  start();
  choose_tab(4);
  click("Slds1", {1, 2}, Qt::RightButton);
  EXPECT_TRUE(shown("GroupBox_Modify_Range"));
  EXPECT_FALSE(shown("Slsums1"));
  EXPECT_TRUE(shown("Sums1Label"));
  EXPECT_EQ(label("Sums1Label"), " Double cl\u00edck on table \n or close this menu \n to sum up ");
  EXPECT_EQ(action("Sums1/Change Table Number")->text(), "Choose new Table (curr.: 0)");
}

TEST_F(TableTabs, TheModifyRangeMenuHasItsButtons) {
  start();
  std::vector<std::string> buttons;
  for (const QPushButton* button :
       window->findChild<QGroupBox*>("GroupBox_Modify_Range")->findChildren<QPushButton*>()) {
    buttons.push_back(button->text().toStdString());
  }
  EXPECT_EQ(buttons,
            (std::vector<std::string>{
                "Set full Range  (-...+)", "Copy Min to Max", "Copy Max to Min", "Copy Lattice Offset to Max",
                "Copy Lattice Offset to Min", "Set Min to 0", "Set Max to 0", "Exchange Ranges",
                "Set Table to Default", "Choose new Table (curr.: 0)", "Copy Table", "Close"}));
}

TEST_F(TableTabs, TheCheckBoxesChooseTheDestination) {
  start();
  choose_tab(4);
  click("Slds1", {1, 2}, Qt::RightButton);
  auto* second = window->findChild<QCheckBox*>("CB_Range2IsDest");
  EXPECT_EQ(second->text(), "Destination = Range 2");
  EXPECT_TRUE(second->isChecked());
  QTest::mouseClick(second, Qt::LeftButton, {}, {8, second->height() / 2});
  EXPECT_FALSE(workbench().range_is_destination[1]);
  ASSERT_EQ(text("Slds1", {1, 10}), "0");
  press_button("GroupBox_Modify_Range", "Set full Range  (-...+)");
  EXPECT_EQ(text("Slds1", {1, 10}), "-");
  EXPECT_EQ(text("Slds1", {2, 10}), "+");
  EXPECT_EQ(text("Slds1", {3, 10}), "0");
  EXPECT_TRUE(grid("Slds1").hasFocus());
  EXPECT_TRUE(shown("GroupBox_Modify_Range"));
}

TEST_F(TableTabs, ClosingTheModifyRangeMenuSumsUp) {
  start();
  choose_tab(4);
  click("Slds1", {1, 2}, Qt::RightButton);
  press_button("GroupBox_Modify_Range", "Set Max to 0");
  press_button("GroupBox_Modify_Range", "Close");
  EXPECT_FALSE(shown("GroupBox_Modify_Range"));
  EXPECT_TRUE(shown("Slsums1"));
}

TEST_F(TableTabs, ADoubleClickSumsUpAndOpensNoEditor) {
  start();
  choose_tab(4);
  click("Slds1", {1, 2}, Qt::RightButton);
  click("Slds1", {2, 4}, Qt::LeftButton, true);
  EXPECT_TRUE(shown("Slsums1"));
  EXPECT_FALSE(grid("Slds1").viewport()->findChild<QLineEdit*>()->isVisible());
}

TEST_F(TableTabs, AxesAreChosenByKeys) {
  start();
  choose_tab(4);
  click("Slds1", {1, 5});
  type("a");
  EXPECT_EQ(workbench().document.ranges.current_table().icoo_along_x_in_g[0], 3);
  EXPECT_EQ(text("Slds1", {0, 5}).find("k3=x1"), 0u);
}

TEST_F(TableTabs, AnEmptyStoreHasNeitherSumsNorLabel) {
  start({});
  choose_tab(4);
  EXPECT_EQ(label("Sums1Label"), "");
  choose_tab(5);
  EXPECT_FALSE(shown("Slsums2"));
  EXPECT_EQ(label("Sums2Label"), "");
}

TEST_F(TableTabs, Sums2ShowsAColumnForEachLattice) {
  start();
  choose_tab(5);
  EXPECT_TRUE(shown("Slsums2"));
  EXPECT_EQ(grid("Slsums2").model()->columnCount(), 1);
  EXPECT_EQ(grid("Slsums2").model()->rowCount(), 25);
  EXPECT_EQ(text("Slsums2", {1, 1}), "1");
  trigger("Cmd/Delete All");
  EXPECT_FALSE(shown("Slsums2"));
}

TEST_F(TableTabs, AParameterIsEditedAndActs) {
  start();
  choose_tab(8);
  int row = 1;
  while (text("Slconfig", {2, row}) != "Algadd_DefaultTableIndex") ++row;
  click("Slconfig", {4, row});
  type("7");
  press(Qt::Key_Return);
  EXPECT_EQ(workbench().document.algadd.aanr(), 7);
  EXPECT_EQ(window->menuBar()->actions()[6]->text().remove('&'), "AA:7");
  type("99");
  press(Qt::Key_Return);
  EXPECT_EQ(text("Slconfig", {4, row}), "7");
}

TEST_F(TableTabs, TheCommentFollowsTheFileAndTheEditorTheComment) {
  start();
  choose_tab(2);
  auto* editor = window->findChild<QPlainTextEdit*>("Comment");
  EXPECT_TRUE(editor->hasFocus());
  EXPECT_TRUE(editor->toPlainText().startsWith("A walk in the plane: from every point"));
  const std::string before = workbench().document.comment;
  type("x");
  EXPECT_EQ(workbench().document.comment, "x" + before);
  editor->setPlainText("one\n\ntwo");
  EXPECT_EQ(workbench().document.comment, "one\r\n\r\ntwo\r\n");
  editor->clear();
  EXPECT_EQ(workbench().document.comment, "");
  press(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(workbench().document.comment, before);
  EXPECT_TRUE(editor->toPlainText().startsWith("A walk in the plane"));
}

TEST_F(TableTabs, LeavingAPageTakesItsEdit) {
  start();
  choose_tab(3);
  click("SlAlgadd", {7, 2});
  type("5");
  choose_tab(0);
  EXPECT_EQ(workbench().document.algadd.entry(0, 6).ldest, 5);
}

}  // namespace
}  // namespace kov
