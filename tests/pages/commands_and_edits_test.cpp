// Commands that meet a cell that is being edited.
#include <QPlainTextEdit>
#include <new>

#include "pages/window_desk.h"

namespace kov {
namespace {

/// The Algadd page with the empty table 1, over a store of one point.
class CommandsAndEdits : public WindowDesk {
 protected:
  void start_at_empty_table() {
    start();
    choose_tab(3);
    type("w");
    ASSERT_EQ(text("SlAlgadd", {0, 0}), "1=aanr");
    click("SlAlgadd", {1, 1});
  }
  bool algadd_is_enabled() { return action("Alg/DelAndDo Algadd Steps")->isEnabled(); }
  const cotyp& first_p() { return workbench().document.algadd.entry(1, 0).p; }
};

TEST_F(CommandsAndEdits, AShortcutMeetsTheCommandThatTheEditEnables) {
  start_at_empty_table();
  ASSERT_FALSE(algadd_is_enabled());
  type("1/2");
  press_ctrl_a();
  EXPECT_EQ(first_p(), cotyp(1, 2, 0, 1));
  EXPECT_EQ(lmap().nlast(), 10);
  EXPECT_TRUE(algadd_is_enabled());
}

TEST_F(CommandsAndEdits, AShortcutDoesNotMeetTheCommandThatTheEditDisables) {
  start_at_empty_table();
  type("1/2");
  press(Qt::Key_Return);
  ASSERT_TRUE(algadd_is_enabled());
  type("0");
  press_ctrl_a();
  EXPECT_EQ(first_p(), cotyp(0));
  EXPECT_EQ(lmap().nlast(), 0);
  EXPECT_FALSE(algadd_is_enabled());
}

TEST_F(CommandsAndEdits, AMenuShowsWhatIsEnabledWithTheEdit) {
  start_at_empty_table();
  auto* menu = window->findChild<QMenu*>("Alg");
  type("1/2");
  emit menu->aboutToShow();
  EXPECT_EQ(first_p(), cotyp(1, 2, 0, 1));
  EXPECT_TRUE(algadd_is_enabled());
  type("0");
  emit menu->aboutToShow();
  EXPECT_EQ(first_p(), cotyp(0));
  EXPECT_FALSE(algadd_is_enabled());
}

TEST_F(CommandsAndEdits, AnEditThatIsGivenUpEnablesNothing) {
  start();
  choose_tab(8);
  click("Slconfig", {4, 1});
  ASSERT_FALSE(action("File/Del Cfg File")->isEnabled());
  type("5");
  EXPECT_TRUE(action("File/Del Cfg File")->isEnabled());
  press(Qt::Key_Escape);
  EXPECT_FALSE(action("File/Del Cfg File")->isEnabled());
}

TEST_F(CommandsAndEdits, AnEditThatCannotBeStoredStaysAndKeepsItsCommandFromRunning) {
  start();
  bool fails = true;
  window->pages().slq().set_lattice_changed([&fails] {
    if (fails) throw std::bad_alloc();
  });
  auto* editor = grid("Slq").viewport()->findChild<QLineEdit*>();
  type("7");
  {
    CloseMessage message;
    trigger("Util/ActPage");
    EXPECT_EQ(message.text, "Not enough memory.");
  }
  EXPECT_EQ(shown_tab(), 0);
  EXPECT_EQ(editor->text(), "7");
  EXPECT_TRUE(model("Slq").edited());
  {
    CloseMessage message;
    click("Slq", {4, 4});
    EXPECT_EQ(message.text, "Not enough memory.");
  }
  EXPECT_EQ(model("Slq").selected(), (GridCell{1, 1}));
  fails = false;
  {
    AnswerInput answer("3");
    trigger("Util/ActPage");
  }
  EXPECT_EQ(shown_tab(), 3);
  EXPECT_EQ(text("Slq", {1, 1}), "7");
  choose_tab(0);
  click("Slq", {4, 4});
  EXPECT_EQ(model("Slq").selected(), (GridCell{4, 4}));
}

TEST_F(CommandsAndEdits, EscMeansWhatTheGridSays) {
  start();
  const auto editor = [this](const char* name) { return grid(name).viewport()->findChild<QLineEdit*>(); };
  click("Slq", {2, 2});
  type("5");
  press(Qt::Key_Escape);
  EXPECT_EQ(lmap().get(window->pages().slq().key_at({2, 2})), cotyp(5));
  choose_tab(3);
  click("SlAlgadd", {7, 1});
  type("1/3");
  press(Qt::Key_Escape);
  EXPECT_TRUE(editor("SlAlgadd")->isVisible());
  EXPECT_EQ(editor("SlAlgadd")->text(), "1/3");
  EXPECT_TRUE(model("SlAlgadd").edited());
  EXPECT_TRUE(workbench().document.algadd.entry(0, 6).empty());
  choose_tab(8);
  click("Slconfig", {4, 1});
  const std::string before = text("Slconfig", {4, 1});
  type("5");
  press(Qt::Key_Escape);
  EXPECT_EQ(editor("Slconfig")->text().toStdString(), before);
  EXPECT_FALSE(model("Slconfig").edited());
  press(Qt::Key_Down);
  EXPECT_EQ(text("Slconfig", {4, 1}), before);
}

TEST_F(CommandsAndEdits, AnEditedCommentKeepsItsOtherBytes) {
  start();
  workbench().document.comment =
      "gr\xfc\xdf\xa0"
      "e\r\n";
  choose_tab(2);
  auto* editor = window->findChild<QPlainTextEdit*>("Comment");
  EXPECT_EQ(editor->toPlainText(), QString("gr\u00fc\u00df e"));
  type("x");
  EXPECT_EQ(workbench().document.comment,
            "xgr\xfc\xdf\xa0"
            "e\r\n");
  workbench().document.comment =
      "a\xc2\xa0"
      "b\r\nc\r\n";
  window->pages().show(Page::comment);
  type("x");
  EXPECT_EQ(workbench().document.comment,
            "xa\xc2\xa0"
            "b\r\nc\r\n");
}

}  // namespace
}  // namespace kov
