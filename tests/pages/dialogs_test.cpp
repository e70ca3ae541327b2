#include "widgets/dialogs.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

#include "pages/modal.h"
#include "support/temporary_folder.h"
#include "widgets/input_box.h"

namespace kov {
namespace {

const Questions::Accept take_all = [](const std::string&) { return true; };
const std::function<void()> no_beep = [] {};

TEST(InputDialogs, ShowCaptionPromptAndPreset) {
  const OnModal<InputBox> person([](InputBox& box) {
    EXPECT_EQ(box.windowTitle().toStdString(), "Page hotkey");
    EXPECT_EQ(box.findChild<QLabel*>()->text().toStdString(), "To select\nenter integer i [0<=i<=8]");
    EXPECT_EQ(box.findChild<QLabel*>()->textFormat(), Qt::PlainText);
    auto* line = box.findChild<QLineEdit*>();
    EXPECT_EQ(line->text().toStdString(), "4");
    EXPECT_EQ(line->selectedText().toStdString(), "4");
    EXPECT_EQ(box.focusWidget(), line);
    QTest::keyClicks(line, "7");
    QTest::keyClick(line, Qt::Key_Return);
  });
  const InputDialog dialog{"Page hotkey", "To select\nenter integer i [0<=i<=8]", "4"};
  EXPECT_EQ(ask_text(nullptr, dialog, take_all, no_beep), "7");
}

TEST(InputDialogs, AskAgainWithTheRefusedTextSelected) {
  int beeps = 0;
  const OnModal<InputBox> person([&](InputBox& box) {
    auto* line = box.findChild<QLineEdit*>();
    QTest::keyClicks(line, "x1");
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_TRUE(box.isVisible());
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(line->text().toStdString(), "x1");
    EXPECT_EQ(line->selectedText().toStdString(), "x1");
    QTest::keyClicks(line, "22");
    QTest::keyClick(line, Qt::Key_Return);
  });
  std::vector<std::string> tried;
  const auto accept = [&](const std::string& text) {
    tried.push_back(text);
    return text == "22";
  };
  EXPECT_EQ(ask_text(nullptr, {"c", "p", "1"}, accept, [&] { ++beeps; }), "22");
  EXPECT_EQ(tried, (std::vector<std::string>{"x1", "22"}));
}

TEST(InputDialogs, AreCancelledByEsc) {
  const OnModal<InputBox> person([](InputBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(ask_text(nullptr, {"c", "p", "1"}, take_all, no_beep), std::nullopt);
}

void expect_yes_no(bool expected, const std::function<void(QMessageBox&)>& act) {
  const OnModal<QMessageBox> person([&](QMessageBox& box) {
    EXPECT_EQ(box.text().toStdString(), "Really <b>?");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    act(box);
  });
  EXPECT_EQ(ask_yes_no(nullptr, "Really <b>?"), expected);
}

TEST(QuestionBoxes, AreAnsweredWithYesOrNo) {
  expect_yes_no(true, [](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
  expect_yes_no(false, [](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
  expect_yes_no(false, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
}

void expect_all_or_ok(bool expected, const std::function<void(QMessageBox&)>& act) {
  const OnModal<QMessageBox> person(act);
  EXPECT_EQ(ask_all_or_ok(nullptr, "State"), expected);
}

TEST(QuestionBoxes, AreAnsweredWithAllOrOk) {
  expect_all_or_ok(true, [](QMessageBox& box) {
    for (QAbstractButton* button : box.buttons()) {
      if (button->text() == "All") return button->click();
    }
  });
  expect_all_or_ok(false, [](QMessageBox& box) { box.button(QMessageBox::Ok)->click(); });
  expect_all_or_ok(false, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
  expect_all_or_ok(false, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
}

struct LookCase {
  MessageKind kind;
  QMessageBox::Icon icon;
  const char* title;
};

TEST(MessageBoxes, LookLikeTheirKind) {
  for (const LookCase& look : {LookCase{MessageKind::error, QMessageBox::Critical, "Error"},
                               {MessageKind::warning, QMessageBox::Warning, "Warning"},
                               {MessageKind::remark, QMessageBox::Information, "Remark"},
                               {MessageKind::information, QMessageBox::Information, "Information"}}) {
    const OnModal<QMessageBox> person([&](QMessageBox& box) {
      EXPECT_EQ(box.icon(), look.icon);
      EXPECT_EQ(box.windowTitle().toStdString(), look.title);
      EXPECT_EQ(box.text().toStdString(), "two\nlines");
      QTest::keyClick(&box, Qt::Key_Return);
    });
    show_message(nullptr, look.kind, "two\nlines");
  }
}

class FileDialogs : public ::testing::Test {
 protected:
  TemporaryFolder folder;

  void SetUp() override {
    std::filesystem::create_directory(folder.path() / "sub");
    write_text(folder.path() / "sub" / "walk.aa1", "x");
  }

  static void choose(QFileDialog& dialog, const std::filesystem::path& path) {
    auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    name->setText(QString::fromStdString(path.string()));
    QTest::keyClick(name, Qt::Key_Return);
  }
};

TEST_F(FileDialogs, OpenAFileAndMoveToItsFolder) {
  const OnModal<QFileDialog> person([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle().toStdString(), "Open File and read it");
    EXPECT_EQ(dialog.nameFilters(), (QStringList{"Lattice data (*.aa1)", "All files (*)"}));
    EXPECT_EQ(dialog.directory().canonicalPath().toStdString(),
              std::filesystem::canonical(folder.path()).string());
    choose(dialog, folder.path() / "sub" / "walk.aa1");
  });
  EXPECT_EQ(choose_file_to_open(nullptr, "Open File and read it"), folder.path() / "sub" / "walk.aa1");
  EXPECT_TRUE(std::filesystem::equivalent(std::filesystem::current_path(), folder.path() / "sub"));
}

TEST_F(FileDialogs, OpenAFileWithoutAnExtension) {
  write_text(folder.path() / "walk", "x");
  const OnModal<QFileDialog> person([&](QFileDialog& dialog) { choose(dialog, folder.path() / "walk"); });
  EXPECT_EQ(choose_file_to_open(nullptr, "Open"), folder.path() / "walk");
}

TEST_F(FileDialogs, ChangeNothingWhenCancelled) {
  const OnModal<QFileDialog> person([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(choose_file_to_open(nullptr, "Open"), std::nullopt);
  EXPECT_TRUE(std::filesystem::equivalent(std::filesystem::current_path(), folder.path()));
}

TEST_F(FileDialogs, SaveUnderANewNameWithTheUsualExtension) {
  const OnModal<QFileDialog> person([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle().toStdString(), "Save as");
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text().toStdString(), "a.aa1");
    choose(dialog, folder.path() / "sub" / "new");
  });
  EXPECT_EQ(choose_file_to_save(nullptr, "Save as", "a.aa1"), folder.path() / "sub" / "new.aa1");
  EXPECT_TRUE(std::filesystem::equivalent(std::filesystem::current_path(), folder.path() / "sub"));
}

TEST_F(FileDialogs, SaveStartsInTheFolderOfThePreset) {
  const OnModal<QFileDialog> person([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().dirName().toStdString(), "sub");
    dialog.reject();
  });
  EXPECT_EQ(choose_file_to_save(nullptr, "Save as", folder.path() / "sub" / "walk.aa1"), std::nullopt);
}

}  // namespace
}  // namespace kov
