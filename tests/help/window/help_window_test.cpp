#include "widgets/help_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QLabel>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <cstdlib>

namespace kov {
namespace {

constexpr int patience = 20000;

QString cache_folder() { return QStandardPaths::writableLocation(QStandardPaths::CacheLocation); }

template <class Widget>
Widget* part(QWidget& window) {
  return window.findChild<Widget*>();
}

std::string shown_page(QWidget& window) {
  return part<HelpBrowser>(window)->source().toString().toStdString();
}

std::string address(const std::string& file) { return help_address + file; }

QString shown_view(QWidget& window) {
  auto* const views = part<QTabWidget>(window);
  return views->tabText(views->currentIndex());
}

/// The line of text of the view that is shown.
QLineEdit* line_of_view(QWidget& window) {
  return part<QTabWidget>(window)->currentWidget()->findChild<QLineEdit*>();
}

QStringList titles_below(const QHelpContentItem* item) {
  QStringList titles;
  for (int i = 0; i < item->childCount(); ++i) titles += item->child(i)->title();
  return titles;
}

/// A window on the help that was built, as for a person who opens it for the first time.
class HelpWindowTest : public ::testing::Test {
 protected:
  HelpWindowTest() { QDir(cache_folder()).removeRecursively(); }
};

TEST_F(HelpWindowTest, BeginsWithTheOverview) {
  HelpWindow window(KOV_HELP_FILE);
  window.show_contents();
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(window.isWindow());
  EXPECT_EQ(shown_page(window), address("overview.html"));
  EXPECT_EQ(part<HelpBrowser>(window)->documentTitle(), "Overview: lattices, row by row");
  EXPECT_TRUE(part<HelpBrowser>(window)->toPlainText().contains("addressed by a key of 32 integers"));
}

TEST_F(HelpWindowTest, ContentsListThePages) {
  HelpWindow window(KOV_HELP_FILE);
  window.show_contents();
  EXPECT_EQ(shown_view(window), "&Contents");
  auto* const contents = part<QHelpContentWidget>(window);
  ASSERT_TRUE(QTest::qWaitFor([&] { return contents->model()->rowCount() > 5; }, patience));
  QStringList pages;
  for (int row = 0; row < contents->model()->rowCount(); ++row) {
    const QModelIndex index = contents->model()->index(row, 0);
    if (index.data().toString() == "The pages") {
      pages = titles_below(static_cast<QHelpContentModel*>(contents->model())->contentItemAt(index));
    }
  }
  EXPECT_EQ(pages, QStringList({"The Lattices page", "The List page", "The Comment page", "The Algadd page",
                                "The Sums1 page", "The Sums2 page", "The Graph1 page", "The Graph2 page",
                                "The Config page"}));
}

TEST_F(HelpWindowTest, AClickInTheContentsOpensThePage) {
  HelpWindow window(KOV_HELP_FILE);
  window.show_contents();
  auto* const contents = part<QHelpContentWidget>(window);
  const QUrl keys(QString::fromStdString(address("keys.html")));
  ASSERT_TRUE(QTest::qWaitFor([&] { return contents->indexOf(keys).isValid(); }, patience));
  const QModelIndex entry = contents->indexOf(keys);
  contents->expand(entry.parent());
  contents->scrollTo(entry);
  QTest::mouseClick(contents->viewport(), Qt::LeftButton, {}, contents->visualRect(entry).center());
  EXPECT_EQ(shown_page(window), address("keys.html"));
}

TEST_F(HelpWindowTest, EveryTopicOfAPageOpens) {
  HelpWindow window(KOV_HELP_FILE);
  for (const char* topic :
       {"lattices", "list", "comment", "algadd", "sums1", "sums2", "graph1", "graph2", "config"}) {
    window.show_topic(topic);
    EXPECT_EQ(shown_page(window), address(std::string(topic) + ".html"));
    EXPECT_EQ(shown_view(window), "&Contents");
    EXPECT_FALSE(part<HelpBrowser>(window)->toPlainText().isEmpty()) << topic;
  }
}

TEST_F(HelpWindowTest, ContentsFollowThePage) {
  HelpWindow window(KOV_HELP_FILE);
  window.show_topic("sums2");
  auto* const contents = part<QHelpContentWidget>(window);
  EXPECT_TRUE(QTest::qWaitFor([&] { return contents->currentIndex().data().toString() == "The Sums2 page"; },
                              patience));
}

TEST_F(HelpWindowTest, AnUnknownTopicShowsTheOverview) {
  HelpWindow window(KOV_HELP_FILE);
  window.show_topic("config");
  window.show_topic("no such page");
  EXPECT_EQ(shown_page(window), address("overview.html"));
}

TEST_F(HelpWindowTest, IndexFindsCommandsAndKeys) {
  HelpWindow window(KOV_HELP_FILE);
  window.show_index();
  EXPECT_EQ(shown_view(window), "&Index");
  auto* const index = part<QHelpIndexWidget>(window);
  ASSERT_TRUE(QTest::qWaitFor([&] { return index->model()->rowCount() > 150; }, patience));
  QLineEdit* const filter = line_of_view(window);
  EXPECT_TRUE(filter->hasFocus());
  QTest::keyClicks(filter, "AA Track");
  QTest::keyClick(filter, Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown_page(window) == address("alg_menu.html#runs"); }, patience));
  filter->clear();
  QTest::keyClicks(filter, "Ctrl+Y");
  QTest::keyClick(filter, Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown_page(window) == address("keys.html#menus"); }, patience));
}

/// The titles found for words, once they are found; empty when they are not in time.
QStringList found_for(HelpWindow& window, const QString& words, const QString& expected) {
  window.show_search();
  QLineEdit* const line = line_of_view(window);
  line->setText(words);
  QTest::keyClick(line, Qt::Key_Return);
  auto* const found = part<QTabWidget>(window)->currentWidget()->findChild<QListWidget*>();
  const auto found_expected = [&] { return !found->findItems(expected, Qt::MatchExactly).isEmpty(); };
  if (!QTest::qWaitFor(found_expected, patience)) return {};
  QStringList titles;
  for (int row = 0; row < found->count(); ++row) titles += found->item(row)->text();
  return titles;
}

TEST_F(HelpWindowTest, SearchFindsWordsAtOnce) {
  HelpWindow window(KOV_HELP_FILE);
  EXPECT_EQ(found_for(window, "gambler ruined", "The Alg menu"), QStringList{"The Alg menu"});
  EXPECT_EQ(shown_view(window), "&Search");
  auto* const found = part<QTabWidget>(window)->currentWidget()->findChild<QListWidget*>();
  QTest::mouseClick(found->viewport(), Qt::LeftButton, {}, found->visualItemRect(found->item(0)).center());
  EXPECT_EQ(part<HelpBrowser>(window)->source().fileName(), "alg_menu.html");
}

TEST_F(HelpWindowTest, SearchFindsAParameter) {
  HelpWindow window(KOV_HELP_FILE);
  const QStringList titles = found_for(window, "Sums_lt_precision", "Program parameters");
  EXPECT_TRUE(titles.contains("The Sums1 page"));
}

TEST_F(HelpWindowTest, SearchSaysThatThereIsNothing) {
  HelpWindow window(KOV_HELP_FILE);
  ASSERT_FALSE(found_for(window, "gambler", "The Alg menu").isEmpty());
  QLineEdit* const line = line_of_view(window);
  line->setText("hippopotamus");
  QTest::keyClick(line, Qt::Key_Return);
  auto* const count = part<QTabWidget>(window)->currentWidget()->findChild<QLabel*>();
  EXPECT_TRUE(QTest::qWaitFor([&] { return count->text() == "No page has these words."; }, patience));
}

TEST_F(HelpWindowTest, BackAndForward) {
  HelpWindow window(KOV_HELP_FILE);
  window.show_topic("list");
  window.show_topic("algadd");
  QTest::keyClick(part<HelpBrowser>(window), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(shown_page(window), address("list.html"));
  QTest::keyClick(part<HelpBrowser>(window), Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(shown_page(window), address("algadd.html"));
}

TEST_F(HelpWindowTest, EscClosesIt) {
  HelpWindow window(KOV_HELP_FILE);
  window.show_contents();
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
  window.show_topic("list");
  EXPECT_TRUE(window.isVisible());
}

TEST_F(HelpWindowTest, OpensAgainFromTheSameCollection) {
  { HelpWindow first(KOV_HELP_FILE); }
  HelpWindow second(KOV_HELP_FILE);
  second.show_topic("keys");
  EXPECT_EQ(shown_page(second), address("keys.html"));
  EXPECT_FALSE(found_for(second, "gambler", "The Alg menu").isEmpty());
}

TEST_F(HelpWindowTest, TwoWindowsMayBeOpen) {
  HelpWindow first(KOV_HELP_FILE);
  HelpWindow second(KOV_HELP_FILE);
  first.show_topic("keys");
  second.show_topic("list");
  EXPECT_FALSE(part<HelpBrowser>(first)->toPlainText().isEmpty());
  EXPECT_FALSE(part<HelpBrowser>(second)->toPlainText().isEmpty());
}

TEST_F(HelpWindowTest, LeavesNothingBesideAReadOnlyHelpFile) {
  QTemporaryDir installation;
  const QString help_file = installation.filePath("kov.hlp");
  ASSERT_TRUE(QFile::copy(KOV_HELP_FILE, help_file));
  QFile::setPermissions(help_file, QFile::ReadOwner);
  QFile::setPermissions(installation.path(), QFile::ReadOwner | QFile::ExeOwner);
  {
    HelpWindow window(help_file);
    EXPECT_FALSE(found_for(window, "gambler", "The Alg menu").isEmpty());
  }
  EXPECT_EQ(QDir(installation.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"kov.hlp"});
  EXPECT_TRUE(QFile::exists(QDir(cache_folder()).filePath("help.qhc")));
  QFile::setPermissions(installation.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(HelpWindowTest, ReadsTheHelpFileThatItIsGivenNow) {
  QTemporaryDir old_place;
  ASSERT_TRUE(QFile::copy(KOV_HELP_FILE, old_place.filePath("kov.hlp")));
  { HelpWindow old(old_place.filePath("kov.hlp")); }
  old_place.remove();
  HelpWindow window(KOV_HELP_FILE);
  window.show_topic("keys");
  EXPECT_EQ(shown_page(window), address("keys.html"));
  EXPECT_FALSE(part<HelpBrowser>(window)->toPlainText().isEmpty());
}

TEST_F(HelpWindowTest, WorksWhereTheCacheCannotBeWritten) {
  // A file in the place of the folder: not even the superuser can write there.
  QDir().mkpath(QFileInfo(cache_folder()).path());
  QFile obstacle(cache_folder());
  ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
  {
    HelpWindow window(KOV_HELP_FILE);
    window.show_topic("keys");
    EXPECT_FALSE(part<HelpBrowser>(window)->toPlainText().isEmpty());
  }
  EXPECT_TRUE(obstacle.remove());
}

QString error_of(HelpWindow& window) {
  window.show_contents();
  window.show_index();
  window.show_search();
  window.show_topic("list");
  auto* const label = part<QLabel>(window);
  return label == nullptr || part<QTabWidget>(window) != nullptr ? QString() : label->text();
}

TEST_F(HelpWindowTest, SaysThatThereIsNoHelpFile) {
  HelpWindow window("/no/such/kov.hlp");
  EXPECT_EQ(error_of(window), "The help cannot be shown.\n\nThere is no file /no/such/kov.hlp.");
  EXPECT_TRUE(window.isVisible());
}

TEST_F(HelpWindowTest, SaysThatAFileIsNoHelpFile) {
  QTemporaryDir folder;
  QFile wrong(folder.filePath("kov.hlp"));
  ASSERT_TRUE(wrong.open(QIODevice::WriteOnly));
  wrong.write("no help");
  wrong.close();
  HelpWindow window(wrong.fileName());
  EXPECT_TRUE(error_of(window).startsWith("The help cannot be shown.\n\n" + wrong.fileName() + "\n\n"));
}

TEST_F(HelpWindowTest, SaysThatTheDatabaseDriverIsMissing) {
  EXPECT_EXIT(
      {
        QCoreApplication::setLibraryPaths({});
        HelpWindow window(KOV_HELP_FILE);
        const QString error = error_of(window);
        const bool clear =
            error.startsWith("The help cannot be shown.") && error.contains("libqt6sql6-sqlite");
        std::_Exit(clear ? 0 : 1);
      },
      ::testing::ExitedWithCode(0), "");
}

/// The colour behind the example on the page of the data file.
QColor background_of_example(HelpWindow& window) {
  QTextBlock block = part<HelpBrowser>(window)->document()->firstBlock();
  while (block.isValid() && !block.text().startsWith("; Everything")) block = block.next();
  return block.blockFormat().background().color();
}

TEST_F(HelpWindowTest, ColoursFollowThePalette) {
  HelpWindow window(KOV_HELP_FILE);
  window.show_topic("data_file");
  const QPalette before = QApplication::palette();
  QPalette dark(QColor(30, 30, 30));
  dark.setColor(QPalette::Base, QColor(20, 20, 20));
  dark.setColor(QPalette::Text, Qt::white);
  dark.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
  QApplication::setPalette(dark);
  EXPECT_TRUE(QTest::qWaitFor([&] { return background_of_example(window) == QColor(45, 45, 45); }, patience));
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace kov
