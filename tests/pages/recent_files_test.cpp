// The files worked on last.
#include "pages/window_desk.h"
#include "text/integers.h"

namespace kov {
namespace {

class RecentFilesTest : public WindowDesk {
 protected:
  QMenu& recent() { return *window->findChild<QMenu*>("Recent"); }
  std::vector<std::string> shown() {
    emit recent().aboutToShow();
    std::vector<std::string> texts;
    for (const QAction* item : recent().actions()) texts.push_back(item->text().toStdString());
    return texts;
  }
  void open(const std::string& name) {
    if (!std::filesystem::exists(name)) std::filesystem::copy_file("walk2d.aa1", name);
    window->open_file(folder() / name);
  }
};

TEST_F(RecentFilesTest, AreNineAtMostNewestFirst) {
  start({});
  for (int i = 1; i <= 11; ++i) open("f" + int_text(i) + ".aa1");
  const std::vector<std::string> texts = shown();
  ASSERT_EQ(texts.size(), 9u);
  EXPECT_EQ(texts.front(), "&1  " + (folder() / "f11.aa1").string());
  EXPECT_EQ(texts.back(), "&9  " + (folder() / "f3.aa1").string());
}

TEST_F(RecentFilesTest, AnAmpersandIsShownAndOpened) {
  start({});
  open("a&b.aa1");
  open("walk2d.aa1");
  const std::vector<std::string> texts = shown();
  ASSERT_EQ(texts.size(), 2u);
  EXPECT_TRUE(texts[1].ends_with("/a&&b.aa1"));
  recent().actions()[1]->trigger();
  QTRY_VERIFY_WITH_TIMEOUT(workbench().file.name() == "a&b.aa1", 5000);
}

TEST_F(RecentFilesTest, OneThatIsGoneIsReportedAndChangesNothing) {
  start({});
  open("gone.aa1");
  open("walk2d.aa1");
  std::filesystem::remove("gone.aa1");
  ASSERT_EQ(shown().size(), 2u);
  const std::size_t points = lmap().count();
  {
    const CloseMessage message;
    recent().actions()[1]->trigger();
    QTRY_VERIFY_WITH_TIMEOUT(!message.text.empty(), 5000);
    EXPECT_NE(message.text.find("gone.aa1"), std::string::npos);
  }
  EXPECT_EQ(workbench().file.name(), "walk2d.aa1");
  EXPECT_EQ(lmap().count(), points);
  EXPECT_TRUE(shown().front().ends_with("/walk2d.aa1"));
}

TEST_F(RecentFilesTest, OneThatCannotBeNamedIsLeftOut) {
  start({});
  open("n\xe4me.aa1");
  EXPECT_EQ(workbench().file.path.filename().string(), "n\xe4me.aa1");
  EXPECT_TRUE(shown().empty());
}

TEST_F(RecentFilesTest, AFolderThatIsGoneStopsNothing) {
  start({});
  std::filesystem::create_directory("inner");
  std::filesystem::copy_file("walk2d.aa1", "inner/a.aa1");
  window->open_file(folder() / "inner" / "a.aa1");
  workbench().file.path = "a.aa1";
  std::filesystem::remove_all(folder() / "inner");
  trigger("Cmd/Delete All");
  EXPECT_TRUE(lmap().empty());
  EXPECT_TRUE(shown().front().ends_with("/inner/a.aa1"));
}

}  // namespace
}  // namespace kov
