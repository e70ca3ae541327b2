#include <QLabel>

#include "app/kovus1.h"
#include "pages/window_desk.h"

namespace kov {
namespace {

class UserWindow : public WindowDesk {
 protected:
  std::unique_ptr<TUF1> user_window;

  void open() {
    start();
    user_window = std::make_unique<TUF1>(*window);
    trigger("Bar/US");
  }
  void TearDown() override {
    user_window.reset();
    WindowDesk::TearDown();
  }
  void choose(const char* item) { user_window->findChild<QAction*>(item)->trigger(); }
};

TEST_F(UserWindow, IsHiddenUntilItIsWanted) {
  start();
  user_window = std::make_unique<TUF1>(*window);
  EXPECT_FALSE(user_window->isVisible());
  trigger("Bar/US");
  EXPECT_TRUE(user_window->isVisible());
  EXPECT_FALSE(user_window->isModal());
  EXPECT_EQ(user_window->windowTitle(), "UF1");
}

TEST_F(UserWindow, HasTwoPagesWithTheirLabels) {
  open();
  auto* pages = user_window->findChild<QTabWidget*>("PaCo");
  ASSERT_EQ(pages->count(), 2);
  EXPECT_EQ(pages->tabText(0), "Algus1");
  EXPECT_EQ(pages->tabText(1), "Algus2");
  EXPECT_EQ(user_window->findChild<QLabel*>("ProposalLabel1")->text(),
            "Here you can place Parameter tables for your algorithm. 1");
  EXPECT_EQ(user_window->findChild<QLabel*>("ProposalLabel2")->text(),
            "Here you can place Parameter tables for your algorithm. 2");
  EXPECT_EQ(pages->size(), user_window->centralWidget()->size());
}

TEST_F(UserWindow, ItsNamesAreItsControls) {
  open();
  EXPECT_EQ(user_window->PaCo, user_window->centralWidget());
  EXPECT_EQ(user_window->ProposalLabel1, user_window->findChild<QLabel*>("ProposalLabel1"));
  EXPECT_EQ(user_window->ProposalLabel2, user_window->findChild<QLabel*>("ProposalLabel2"));
  ASSERT_NE(user_window->ProposalLabel2, nullptr);
}

TEST_F(UserWindow, HasOneMenu) {
  open();
  ASSERT_EQ(user_window->menuBar()->actions().size(), 1);
  QAction* menu = user_window->menuBar()->actions()[0];
  EXPECT_EQ(menu->text().remove('&'), "Cmd");
  std::vector<std::string> items;
  for (const QAction* item : menu->menu()->actions()) {
    if (!item->isSeparator()) items.push_back(item->text().toStdString());
  }
  EXPECT_EQ(items, (std::vector<std::string>{"Start Algus1", "Start Algus2", "Close", "Exit"}));
}

TEST_F(UserWindow, StartsShowThePlacesForCode) {
  open();
  {
    CloseMessage message;
    choose("Cmd/Start Algus1");
    EXPECT_EQ(message.text, "*** Here you can place code for your algorithm 1 ***");
  }
  {
    CloseMessage message;
    choose("Cmd/Start Algus2");
    EXPECT_EQ(message.text, "*** Here you can place code for your algorithm 2 ***");
  }
  EXPECT_EQ(caption(), "nlast = 0 (0.176 KB = 1e)");
}

TEST_F(UserWindow, CloseKeepsItsPageAndTheProgram) {
  open();
  user_window->findChild<QTabWidget*>("PaCo")->setCurrentIndex(1);
  choose("Cmd/Close");
  EXPECT_FALSE(user_window->isVisible());
  EXPECT_TRUE(window->isVisible());
  trigger("Bar/US");
  EXPECT_EQ(user_window->findChild<QTabWidget*>("PaCo")->currentIndex(), 1);
}

TEST_F(UserWindow, ExitEndsTheProgramWithoutAQuestion) {
  open();
  trigger("Mod/Init n=0 with 1_1");
  QTimer::singleShot(0, user_window.get(), [this] { choose("Cmd/Exit"); });
  EXPECT_EQ(QCoreApplication::exec(), 0);
  EXPECT_FALSE(window->isVisible());
  EXPECT_FALSE(user_window->isVisible());
}

TEST_F(UserWindow, IsLockedWithTheMainWindow) {
  open();
  emit window->locked(true);
  EXPECT_FALSE(user_window->menuBar()->isEnabled());
  emit window->locked(false);
  EXPECT_TRUE(user_window->menuBar()->isEnabled());
}

TEST_F(UserWindow, AnOperationOfOnesOwnIsRunLikeACommand) {
  start();
  click("Slq", {2, 2});
  type("3");
  window->run_own("Mine", [this] { EXPECT_EQ(lmap().count(), 2u); });
  EXPECT_EQ(caption(), "nlast = 0 (0.352 KB = 2e)");
  CloseMessage message;
  window->run_own("Mine", [] { throw std::runtime_error("no such thing"); });
  EXPECT_EQ(message.text, "no such thing");
}

TEST_F(UserWindow, AnOperationThatChangesNothingLeavesTheCaption) {
  start({});
  window->run_own("Mine", [] {});
  EXPECT_EQ(caption(), "kov (no file specified)");
  window->run_own("Mine", [this] { window->user().progress.headline("half of it"); });
  EXPECT_EQ(caption(), " Lattices are empty. ");
}

TEST_F(UserWindow, AnOperationThatChangesAQuantityIsSeen) {
  start();
  choose_tab(4);
  ASSERT_EQ(text("Slsums1", {3, 2}), "1");
  window->run_own("Mine", [this] { lmap().transform([](const cotyp& q) { return q + q; }); });
  EXPECT_EQ(text("Slsums1", {3, 2}), "2");
}

TEST_F(UserWindow, WhatEscapesFromAnEventIsShownAndTheWindowGoesOn) {
  open();
  CloseMessage message;
  bool after = false;
  QTimer::singleShot(0, [] { throw std::runtime_error("lost on the way"); });
  QTimer::singleShot(50, [&after] { after = true; });
  EXPECT_TRUE(QTest::qWaitFor([&after] { return after; }, 5000));
  EXPECT_EQ(message.text, "lost on the way");
  EXPECT_TRUE(window->isVisible());
}

}  // namespace
}  // namespace kov
