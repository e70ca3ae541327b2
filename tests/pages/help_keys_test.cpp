// The ways from the windows into the help.
#include <QTextBrowser>
#include <fstream>

#include "app/help_file.h"
#include "app/kovus1.h"
#include "pages/window_desk.h"
#include "widgets/help_window.h"

namespace kov {
namespace {

class HelpKeys : public WindowDesk {
 protected:
  void SetUp() override {
    WindowDesk::SetUp();
    QStandardPaths::setTestModeEnabled(true);
    start();
  }
  void TearDown() override {
    WindowDesk::TearDown();
    QStandardPaths::setTestModeEnabled(false);
  }

  static HelpWindow* help() {
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (auto* shown = dynamic_cast<HelpWindow*>(top)) return shown;
    }
    return nullptr;
  }
  static std::string topic() {
    if (help() == nullptr) return "no help window";
    const auto* browser = help()->findChild<QTextBrowser*>();
    return browser == nullptr ? "no help file" : browser->source().fileName().toStdString();
  }
  static QString view() {
    auto* views = help()->findChild<QTabWidget*>();
    return views->tabText(views->currentIndex()).remove('&');
  }
  static void bring_to_front(QWidget& front) {
    QApplication::setActiveWindow(&front);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&front));
  }
};

TEST_F(HelpKeys, F1OpensTheTopicOfThePageThatIsShown) {
  const std::vector<std::string> topics = {"lattices.html", "list.html",   "comment.html",
                                           "algadd.html",   "sums1.html",  "sums2.html",
                                           "graph1.html",   "graph2.html", "config.html"};
  for (std::size_t page = 0; page < topics.size(); ++page) {
    bring_to_front(*window);
    choose_tab(static_cast<int>(page));
    press(Qt::Key_F1);
    EXPECT_EQ(topic(), topics[page]);
    EXPECT_EQ(view(), "Contents");
    EXPECT_TRUE(help()->isVisible());
  }
}

TEST_F(HelpKeys, F1WorksWhileACellIsEdited) {
  choose_tab(3);
  click("SlAlgadd", {2, 2});
  type("5");
  press(Qt::Key_F1);
  EXPECT_EQ(topic(), "algadd.html");
}

TEST_F(HelpKeys, TheItemsOpenContentsIndexAndSearch) {
  trigger("Help/Index");
  EXPECT_EQ(view(), "Index");
  trigger("Help/Search");
  EXPECT_EQ(view(), "Search");
  trigger("Help/Contents");
  EXPECT_EQ(view(), "Contents");
  EXPECT_EQ(topic(), "lattices.html");
}

TEST_F(HelpKeys, F1InTheWindowForUserAlgorithmsTellsOfThese) {
  TUF1 user_window(*window);
  trigger("Bar/US");
  bring_to_front(user_window);
  QTest::keyClick(&user_window, Qt::Key_F1);
  EXPECT_EQ(topic(), "own_algorithm.html");
}

TEST_F(HelpKeys, TheHelpFileStandsBesideTheProgramOrWhereItIsInstalled) {
  std::filesystem::create_directories(folder() / "bin");
  EXPECT_EQ(help_file_of(folder() / "bin"), folder() / "share" / "kov" / "kov.hlp");
  std::ofstream(folder() / "bin" / "kov.hlp") << "x";
  EXPECT_EQ(help_file_of(folder() / "bin"), folder() / "bin" / "kov.hlp");
  EXPECT_TRUE(std::filesystem::exists(help_file()));
}

}  // namespace
}  // namespace kov
