#include "widgets/key_events.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QtTest>

#include "widgets/menu_keys.h"

namespace kov {
namespace {

using Name = GridKey::Name;

constexpr auto none = Qt::NoModifier;
constexpr auto ctrl = Qt::ControlModifier;
constexpr auto shift = Qt::ShiftModifier;

QKeyEvent pressed(int key, Qt::KeyboardModifiers modifiers = none, const QString& text = {}) {
  return {QEvent::KeyPress, key, modifiers, text};
}

struct NamedCase {
  int key;
  Qt::KeyboardModifiers modifiers;
  Name name;
};

TEST(KeyEvents, HaveTheNamesOfTheModels) {
  const NamedCase cases[] = {{Qt::Key_Return, none, Name::enter},
                             {Qt::Key_Enter, Qt::KeypadModifier, Name::enter},
                             {Qt::Key_Escape, none, Name::escape},
                             {Qt::Key_Tab, none, Name::tab},
                             {Qt::Key_Backspace, none, Name::backspace},
                             {Qt::Key_Backspace, shift, Name::backspace},
                             {Qt::Key_Up, none, Name::up},
                             {Qt::Key_Down, Qt::KeypadModifier, Name::down},
                             {Qt::Key_PageUp, none, Name::page_up},
                             {Qt::Key_PageDown, none, Name::page_down},
                             {Qt::Key_PageUp, ctrl, Name::first_page},
                             {Qt::Key_PageDown, ctrl, Name::last_page}};
  for (const auto& [key, modifiers, name] : cases) {
    const auto found = grid_key(pressed(key, modifiers));
    ASSERT_TRUE(found) << key;
    EXPECT_EQ(found->name, name) << key;
  }
}

TEST(KeyEvents, AreCharactersAsTyped) {
  for (const char c : {'p', 'P', '1', '+', '/', ' ', '~'}) {
    const auto found = grid_key(pressed(Qt::Key_unknown, none, QString(QLatin1Char(c))));
    ASSERT_TRUE(found) << c;
    EXPECT_EQ(found->name, Name::character);
    EXPECT_EQ(found->character, c);
  }
  const auto umlaut = grid_key(pressed(Qt::Key_Adiaeresis, none, QString(QChar(0xe4))));
  ASSERT_TRUE(umlaut);
  EXPECT_EQ(umlaut->character, '\xc3');
}

TEST(KeyEvents, LeaveTheRestToTheTableAndTheMenus) {
  EXPECT_FALSE(grid_key(pressed(Qt::Key_A, ctrl, "\x01")));
  EXPECT_FALSE(grid_key(pressed(Qt::Key_A, Qt::AltModifier, "a")));
  EXPECT_FALSE(grid_key(pressed(Qt::Key_PageUp, ctrl | shift)));
  EXPECT_FALSE(grid_key(pressed(Qt::Key_Tab, ctrl)));
  EXPECT_FALSE(grid_key(pressed(Qt::Key_Up, shift)));
  EXPECT_FALSE(grid_key(pressed(Qt::Key_Left)));
  EXPECT_FALSE(grid_key(pressed(Qt::Key_F2)));
  EXPECT_FALSE(grid_key(pressed(Qt::Key_Delete, none, "\x7f")));
}

TEST(MenuKeys, AreAllThatDoNotEdit) {
  for (const int key : {Qt::Key_X, Qt::Key_A, Qt::Key_Q, Qt::Key_Y, Qt::Key_D, Qt::Key_I, Qt::Key_R,
                        Qt::Key_O, Qt::Key_S, Qt::Key_Tab}) {
    EXPECT_FALSE(is_editing_key(pressed(key, ctrl))) << key;
  }
  EXPECT_FALSE(is_editing_key(pressed(Qt::Key_C, ctrl | shift)));
  EXPECT_FALSE(is_editing_key(pressed(Qt::Key_F, Qt::AltModifier, "f")));
  for (const int key : {Qt::Key_C, Qt::Key_V, Qt::Key_Z, Qt::Key_Left, Qt::Key_End, Qt::Key_Delete}) {
    EXPECT_TRUE(is_editing_key(pressed(key, ctrl))) << key;
  }
  EXPECT_TRUE(is_editing_key(pressed(Qt::Key_A, shift, "A")));
}

TEST(MenuKeys, AreKeptFromATextWidget) {
  QPlainTextEdit text;
  text.setPlainText("some text");
  text.selectAll();
  give_keys_to_menus(text);
  QTest::keyClick(&text, Qt::Key_X, ctrl);
  EXPECT_EQ(text.toPlainText().toStdString(), "some text");
  QKeyEvent override_of_menu(QEvent::ShortcutOverride, Qt::Key_X, ctrl);
  QApplication::sendEvent(&text, &override_of_menu);
  EXPECT_FALSE(override_of_menu.isAccepted());
  QTest::keyClick(&text, Qt::Key_Q);
  EXPECT_EQ(text.toPlainText().toStdString(), "q");
}

}  // namespace
}  // namespace kov
