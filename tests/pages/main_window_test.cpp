#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStatusBar>
#include <fstream>

#include "pages/during_operation.h"
#include "pages/window_desk.h"
#include "text/integers.h"
#include "widgets/qt_text.h"

namespace kov {
namespace {

class MainWindow : public WindowDesk {};

TEST_F(MainWindow, HasNinePagesInOrder) {
  start();
  auto* pages = window->findChild<QTabWidget*>("PaCo");
  std::vector<std::string> names;
  for (int i = 0; i < pages->count(); ++i) names.push_back(pages->tabText(i).toStdString());
  EXPECT_EQ(names, (std::vector<std::string>{"Lattices", "List", "Comment", "Algadd", "Sums1", "Sums2",
                                             "Graph1", "Graph2", "Config"}));
  EXPECT_EQ(pages->tabToolTip(0).toStdString(), "view and edit global multidimensional lattices");
}

TEST_F(MainWindow, TheMenuBarHoldsMenusAndItems) {
  start();
  std::vector<std::string> items;
  for (const QAction* item : window->menuBar()->actions())
    items.push_back(item->text().remove('&').toStdString());
  EXPECT_EQ(items, (std::vector<std::string>{"File", "Util", "Cmd", "Mod", "Alg", "Help", "AA:0", "S1:0", "C",
                                             "US"}));
}

TEST_F(MainWindow, EveryItemOfTheBarHasAKeyOfItsOwn) {
  start();
  QSet<QString> keys;
  for (const QAction* item : window->menuBar()->actions()) {
    keys.insert(QKeySequence::mnemonic(item->text()).toString());
  }
  EXPECT_EQ(keys.size(), window->menuBar()->actions().size());
  EXPECT_FALSE(keys.contains(QString()));
}

/// Every command of the table stands in its menu, in the table's order, with its shortcut.
TEST_F(MainWindow, MenusFollowTheCommandTable) {
  start();
  for (const char* title : {"File", "Util", "Cmd", "Mod", "Alg", "Help"}) {
    std::vector<std::string> expected;
    for (const Command& command : commands()) {
      if (command.menu == title)
        expected.push_back(item_name(command.caption) + std::string(command.shortcut));
    }
    std::vector<std::string> shown;
    for (const QAction* item : window->findChild<QMenu*>(title)->actions()) {
      const QString name = item->objectName();
      const bool own = name == "Help/Contents" || name == "Help/Index" || name == "Help/Search";
      if (item->isSeparator() || item->menu() != nullptr || own) continue;
      shown.push_back((name.section('/', 1) + item->shortcut().toString()).toStdString());
    }
    EXPECT_EQ(shown, expected) << title;
    EXPECT_FALSE(shown.empty()) << title;
  }
}

TEST_F(MainWindow, MenusAreDividedIntoGroups) {
  start();
  const std::vector<std::pair<std::string, std::vector<std::string>>> first_below_a_line = {
      {"File", {"Read new Cfg", "Save", "Save Cfg", "C. Warnlevel", "Exit"}},
      {"Util", {}},
      {"Cmd", {"Delete All", "Del nlast", "Ch. last b. 0", "Choose Last"}},
      {"Mod", {"Init For Test", "Set Default Offset", "All to Float", "Cross Product"}},
      {"Alg", {"Change Algadd Nr", "Algadd with del"}},
      {"Help", {"State"}}};
  for (const auto& [title, expected] : first_below_a_line) {
    std::vector<std::string> found;
    bool below_a_line = false;
    for (const QAction* item : window->findChild<QMenu*>(title.c_str())->actions()) {
      if (below_a_line) found.push_back(item->objectName().section('/', 1).toStdString());
      below_a_line = item->isSeparator();
    }
    EXPECT_EQ(found, expected) << title;
  }
}

TEST_F(MainWindow, TheHelpMenuHasItsItemsInOrder) {
  start();
  std::vector<std::string> items;
  for (const QAction* item : window->findChild<QMenu*>("Help")->actions()) {
    if (!item->isSeparator()) items.push_back(item->text().toStdString());
  }
  EXPECT_EQ(items, (std::vector<std::string>{"Info", "Contents", "Index", "Search", "State"}));
  EXPECT_EQ(action("Help/Contents")->shortcut(), QKeySequence(Qt::Key_F1));
}

TEST_F(MainWindow, OpeningAMenuRefreshesCaptionsAndStates) {
  start();
  EXPECT_FALSE(action("File/Del Cfg File")->isEnabled());
  std::ofstream("kovcfg.aa1") << "\r\n";
  window->user().messages.set_wl(4);
  emit window->findChild<QMenu*>("File")->aboutToShow();
  EXPECT_TRUE(action("File/Del Cfg File")->isEnabled());
  EXPECT_EQ(action("File/C. Warnlevel")->text(), "Change warnl.  4");
  EXPECT_EQ(action("File/Read till n")->text(),
            to_qt("Read till n=" + int_text(workbench().document.cph.kmi("File_in_nelast"))));
}

TEST_F(MainWindow, CaptionsFollowTheLattices) {
  start();
  EXPECT_EQ(action("Alg/Del after nfirst and do Algadd")->text(), "Del n>nf=0, 200 AA");
  EXPECT_EQ(action("Alg/Change Algadd Nr")->text(), "Change aanr=0");
  trigger("Cmd/Delete All");
  EXPECT_EQ(action("Alg/Del after nfirst and do Algadd")->text(), "<Lattices empty>");
}

TEST_F(MainWindow, ACommandThatIsNotEnabledAnyMoreDoesNothing) {
  std::ofstream("kovcfg.aa1") << "\r\n";
  start();
  ASSERT_TRUE(action("File/Del Cfg File")->isEnabled());
  std::filesystem::remove("kovcfg.aa1");
  action("File/Del Cfg File")->trigger();
  EXPECT_FALSE(action("File/Del Cfg File")->isEnabled());
}

TEST_F(MainWindow, ThePageHotkeyChoosesAPage) {
  start();
  AnswerInput answer("3");
  press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(answer.caption, "Page hotkey");
  EXPECT_EQ(answer.preset, "0");
  EXPECT_EQ(shown_tab(), 3);
  EXPECT_EQ(window->focusWidget(), &grid("SlAlgadd"));
}

TEST_F(MainWindow, TheKeysAreThePagesThatWasChosen) {
  start();
  EXPECT_TRUE(grid("Slq").isAncestorOf(window->focusWidget()));
  choose_tab(3);
  EXPECT_EQ(window->focusWidget(), &grid("SlAlgadd"));
  auto* tabs = window->findChild<QTabWidget*>("PaCo")->tabBar();
  tabs->setFocus();
  press(Qt::Key_Right);
  EXPECT_EQ(workbench().active_page, 4);
  EXPECT_TRUE(tabs->hasFocus());
}

TEST_F(MainWindow, ThePageHotkeyRefusesANumberBeyondTheLastPage) {
  start();
  AnswerInput answer("9");
  press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_TRUE(answer.refused);
  EXPECT_EQ(shown_tab(), 0);
}

TEST_F(MainWindow, TheBarChoosesTables) {
  start();
  {
    AnswerInput answer("3");
    window->menuBar()->actions()[6]->trigger();
    EXPECT_EQ(answer.caption, "Algadd Nr.");
  }
  EXPECT_EQ(window->menuBar()->actions()[6]->text().remove('&'), "AA:3");
  {
    AnswerInput answer("4");
    window->menuBar()->actions()[7]->trigger();
    EXPECT_EQ(answer.caption, "Sums1: Choose Table Nr");
  }
  EXPECT_EQ(window->menuBar()->actions()[7]->text().remove('&'), "S1:4");
  {
    CloseMessage message;
    window->menuBar()->actions()[8]->trigger();
    EXPECT_EQ(message.text.find("File for uniform configuration\n(kovcfg.aa1) is not existent."), 0u);
  }
}

TEST_F(MainWindow, ShortcutsHoldWhileACellIsEdited) {
  start();
  click("Slq", {3, 3});
  type("12");
  press_ctrl_a();
  EXPECT_EQ(workbench().document.lmap.nlast(), 10);
}

TEST_F(MainWindow, ACommandTakesTheEditThatIsUnderWay) {
  start();
  click("Slq", {2, 2});
  const Lk key = window->pages().slq().key_at({2, 2});
  type("3");
  press(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(lmap().get(key), cotyp(3, 1, 0, 1));
}

TEST_F(MainWindow, ShortcutsHoldInTheComment) {
  start();
  choose_tab(2);
  auto* editor = window->findChild<QPlainTextEdit*>("Comment");
  editor->setFocus();
  const QString comment = editor->toPlainText();
  press_ctrl_a();
  EXPECT_EQ(lmap().nlast(), 10);
  EXPECT_EQ(editor->toPlainText(), comment);
  AnswerInput answer("1");
  press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(shown_tab(), 1);
}

TEST_F(MainWindow, ExitEndsTheProgramAtOnce) {
  start();
  click("Slq", {3, 3});
  type("12");
  QTimer::singleShot(0, window.get(), [this] { trigger("File/Exit"); });
  EXPECT_EQ(QCoreApplication::exec(), 0);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(MainWindow, ClosingTheWindowIsExit) {
  start();
  QTimer::singleShot(0, window.get(), [this] { window->close(); });
  EXPECT_EQ(QCoreApplication::exec(), 0);
  EXPECT_TRUE(workbench().exit_requested);
}

TEST_F(MainWindow, TheStatusBarCountsPointsAndMemory) {
  start();
  EXPECT_EQ(figure("Nlast"), "nlast 0");
  EXPECT_EQ(figure("Points"), "1 point");
  EXPECT_EQ(figure("EstimatedMemory"), "estimated 0.176 KB");
  EXPECT_EQ(figure("RealMemory").find("real "), 0u);
  EXPECT_EQ(figure("Report"), "");
  EXPECT_FALSE(window->findChild<QLabel*>("Time")->isVisible());
  press_ctrl_a();
  EXPECT_EQ(figure("Nlast"), "nlast 10");
  EXPECT_EQ(figure("Points"), int_text(static_cast<std::int64_t>(lmap().count())) + " points");
}

TEST_F(MainWindow, TheReportOfAnOperationThatIsOverStaysInTheTitleOnly) {
  start();
  {
    const ProgressBox box(window->user().progress, 0, 10);
    window->user().progress.headline("half of it");
    EXPECT_EQ(figure("Report"), "half of it");
  }
  workbench().document.cph.setkmi_1("Sums_EntryCountPerDisplay", 1);
  choose_tab(4);
  EXPECT_EQ(caption(), "lattice point 1 of 1 summed up");
  EXPECT_EQ(title(), "lattice point 1 of 1 summed up - walk2d.aa1 - kov");
  EXPECT_EQ(figure("Report"), "");
}

TEST_F(MainWindow, ADroppedFileIsOpened) {
  start({});
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(to_qt((folder() / "walk2d.aa1").string()))});
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(window.get(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(window.get(), &drop);
  QTRY_VERIFY_WITH_TIMEOUT(workbench().file.chosen, 5000);
  EXPECT_EQ(title(), "nlast = 0 (0.176 KB = 1e) - walk2d.aa1 - kov");
}

TEST_F(MainWindow, AnythingElseIsNotDropped) {
  start({});
  QMimeData data;
  data.setText("1/2");
  QDragEnterEvent text({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(window.get(), &text);
  EXPECT_FALSE(text.isAccepted());
  data.setUrls({QUrl("https://example.org/walk2d.aa1")});
  QDragEnterEvent remote({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(window.get(), &remote);
  EXPECT_FALSE(remote.isAccepted());
}

TEST_F(MainWindow, AFileThatIsChosenMakesItsFolderTheCurrentOne) {
  start({});
  std::filesystem::create_directory("inner");
  std::filesystem::copy_file("walk2d.aa1", "inner/other.aa1");
  window->open_file(folder() / "inner" / "other.aa1");
  EXPECT_EQ(std::filesystem::current_path(), std::filesystem::canonical(folder() / "inner"));
  EXPECT_EQ(workbench().file.name(), "other.aa1");
}

TEST_F(MainWindow, FilesWorkedOnAreRecent) {
  start({});
  auto* recent = window->findChild<QMenu*>("Recent");
  EXPECT_FALSE(recent->menuAction()->isEnabled());
  window->open_file(folder() / "walk2d.aa1");
  std::filesystem::copy_file("walk2d.aa1", "b.aa1");
  window->open_file(folder() / "b.aa1");
  window->open_file(folder() / "walk2d.aa1");
  EXPECT_TRUE(recent->menuAction()->isEnabled());
  emit recent->aboutToShow();
  ASSERT_EQ(recent->actions().size(), 2);
  EXPECT_TRUE(recent->actions()[0]->text().endsWith("/walk2d.aa1"));
  recent->actions()[1]->trigger();
  QTRY_VERIFY_WITH_TIMEOUT(workbench().file.name() == "b.aa1", 5000);
}

TEST_F(MainWindow, ResizingSetsTheScreenParameters) {
  start();
  window->resize(820, 610);
  QCoreApplication::processEvents();
  EXPECT_EQ(workbench().document.cph.kmi("F1_Screen_Default_Width"), window->width());
  EXPECT_EQ(workbench().document.cph.kmi("F1_Screen_Default_Height"), window->height());
  EXPECT_EQ(workbench().window.width, window->width());
  EXPECT_EQ(workbench().window.page_count, 9);
}

TEST_F(MainWindow, AScreenParameterThatIsEditedMovesTheWindowAtOnce) {
  start();
  window->resize(900, 700);
  choose_tab(8);
  const auto row_of = [this](const char* keyword) {
    int row = 1;
    while (text("Slconfig", {2, row}) != keyword) ++row;
    return row;
  };
  click("Slconfig", {4, row_of("F1_Screen_Default_Width")});
  type("770");
  press(Qt::Key_Return);
  EXPECT_EQ(window->width(), 770);
  click("Slconfig", {4, row_of("F1_Screen_Default_Left")});
  type("17");
  press(Qt::Key_Return);
  EXPECT_EQ(window->pos().x(), 17);
  EXPECT_EQ(window->width(), 770);
  // And the page shows where the window goes by itself.
  window->resize(840, 660);
  QCoreApplication::processEvents();
  EXPECT_EQ(text("Slconfig", {4, row_of("F1_Screen_Default_Width")}), "840");
  EXPECT_EQ(text("Slconfig", {4, row_of("F1_Screen_Default_Height")}), "660");
}

TEST_F(MainWindow, TheScreenParametersOfAFileResizeTheWindow) {
  start({});
  std::ofstream("sized.aa1") << "F1_Screen_Default_Width 790 -2147483648 2147483647 1\r\n"
                                "F1_Screen_Default_Height 580 -2147483648 2147483647 1\r\n"
                                "F1_Screen_Default_Top 3 -2147483648 2147483647 1\r\n"
                                "F1_Screen_Default_Left 5 -2147483648 2147483647 1\r\n";
  window->open_file(folder() / "sized.aa1");
  EXPECT_EQ(window->size(), QSize(790, 580));
  EXPECT_EQ(window->pos(), QPoint(5, 3));
}

TEST_F(MainWindow, ALongOperationLocksAndBreakEndsIt) {
  start();
  bool seen = false;
  const DuringOperation during(*window, [&] {
    seen = true;
    EXPECT_FALSE(window->menuBar()->isEnabled());
    EXPECT_FALSE(window->centralWidget()->isEnabled());
    EXPECT_TRUE(window->findChild<QLabel*>("Time")->isVisible());
    EXPECT_TRUE(window->findChild<QWidget*>("ProgressBox")->isVisible());
    // A command cannot be entered, by a shortcut or otherwise.
    QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
    action("Cmd/Delete All")->trigger();
    QTest::mouseClick(window->findChild<QWidget*>("BreakBox")->findChild<QPushButton*>(), Qt::LeftButton);
  });
  AnswerInput steps("100000");
  trigger("Alg/Algadd with del");
  EXPECT_TRUE(seen);
  EXPECT_FALSE(lmap().empty());
  EXPECT_LT(lmap().nlast(), 100000);
  EXPECT_TRUE(window->menuBar()->isEnabled());
  EXPECT_TRUE(window->centralWidget()->isEnabled());
  EXPECT_FALSE(window->findChild<QLabel*>("Time")->isVisible());
  EXPECT_FALSE(window->findChild<QWidget*>("ProgressBox")->isVisible());
  EXPECT_EQ(figure("Nlast"), "nlast " + int_text(lmap().nlast()));
  EXPECT_EQ(figure("Report"), "");
}

}  // namespace
}  // namespace kov
