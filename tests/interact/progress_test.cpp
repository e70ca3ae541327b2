#include "interact/progress.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

#include "text/integers.h"

namespace kov {
namespace {

/// Writes down what a window would show; its Break button is pressed by the test.
class Display final : public Progress {
 public:
  std::vector<std::string> shown;
  std::vector<std::size_t> depths;
  bool pressed = false;
  int polls = 0;
  bool out_of_memory = false;

  void breathe() override {}
  void show_grey(bool grey) override {
    if (out_of_memory) throw std::bad_alloc();
    shown.emplace_back(grey ? "grey" : "own colour");
  }

 protected:
  void show_box(const Box& box) override {
    if (out_of_memory) throw std::bad_alloc();
    shown.push_back(box.title + " " + int_text(box.from) + " " + int_text(box.position) + " " +
                    int_text(box.to));
    depths.push_back(box.depth);
  }
  void hide_box() override {
    if (out_of_memory) throw std::bad_alloc();
    shown.push_back("hidden");
  }
  bool poll_break() override {
    ++polls;
    return std::exchange(pressed, false);
  }
  void show_headline(const std::string& text) override { shown.push_back("headline " + text); }
  void show_caption(const std::string& text) override { shown.push_back("caption " + text); }
};

using Shown = std::vector<std::string>;

TEST(Progress, ShowsTheBoxItsBarAndItsEnd) {
  Display display;
  {
    ProgressBox box(display, 5, 10);
    EXPECT_TRUE(display.is_open());
    box.at(7);
  }
  EXPECT_FALSE(display.is_open());
  EXPECT_EQ(display.shown, (Shown{" Progress 5 5 10", " Progress 5 7 10", "hidden"}));
}

TEST(Progress, ShowsTheOuterBoxAgainWhenTheInnerOneIsClosed) {
  Display display;
  {
    ProgressBox run(display, 0, 9, "run");
    run.at(4);
    {
      ProgressBox deletion(display, 0, 100, "deletion");
      deletion.at(50);
    }
    run.at(5);
  }
  EXPECT_EQ(display.shown, (Shown{"run 0 0 9", "run 0 4 9", "deletion 0 0 100", "deletion 0 50 100",
                                  "run 0 4 9", "run 0 5 9", "hidden"}));
  EXPECT_EQ(display.depths, (std::vector<std::size_t>{0, 0, 1, 1, 0, 0}));
}

TEST(Progress, WithoutABoxIgnoresPositionAndClose) {
  Display display;
  display.at(3);
  display.close();
  EXPECT_EQ(display.shown, Shown{});
}

TEST(Progress, ABoxIsClosedWhenAnErrorLeavesTheScope) {
  Display display;
  try {
    ProgressBox box(display, 0, 1);
    throw 1;
  } catch (int) {
  }
  EXPECT_EQ(display.shown, (Shown{" Progress 0 0 1", "hidden"}));
}

TEST(Progress, ABoxThatCannotBeShownIsNotOpen) {
  Display display;
  display.out_of_memory = true;
  EXPECT_THROW(ProgressBox(display, 0, 1), std::bad_alloc);
  EXPECT_FALSE(display.is_open());
}

TEST(Progress, ABoxThatCannotBeHiddenIsClosedWithoutAThrow) {
  Display display;
  {
    ProgressBox outer(display, 0, 1);
    {
      ProgressBox inner(display, 0, 1);
      display.out_of_memory = true;
    }
    EXPECT_TRUE(display.is_open());
  }
  EXPECT_FALSE(display.is_open());
}

TEST(GreyPanel, HasItsColourBackOnEveryWayOut) {
  Display display;
  try {
    const GreyPanel grey(display);
    EXPECT_EQ(display.shown, Shown{"grey"});
    throw 1;
  } catch (int) {
  }
  EXPECT_EQ(display.shown, (Shown{"grey", "own colour"}));
}

TEST(GreyPanel, EndsWithoutAThrow) {
  Display display;
  const GreyPanel grey(display);
  display.out_of_memory = true;
}

TEST(Break, StaysPressedUntilTheBoxIsClosed) {
  Display display;
  {
    ProgressBox box(display, 0, 1);
    EXPECT_FALSE(display.break_requested());
    display.pressed = true;
    EXPECT_TRUE(display.break_requested());
    EXPECT_TRUE(display.break_requested());
    EXPECT_EQ(display.polls, 2);
  }
  EXPECT_FALSE(display.break_requested());
}

TEST(Break, PressedInAnInnerBoxAlsoStopsTheOuterOne) {
  Display display;
  ProgressBox run(display, 0, 1);
  {
    ProgressBox deletion(display, 0, 1);
    display.pressed = true;
    EXPECT_TRUE(display.break_requested());
  }
  EXPECT_TRUE(display.break_requested());
}

TEST(Break, PressedInTheOuterBoxStopsTheInnerOneToo) {
  Display display;
  ProgressBox run(display, 0, 1);
  display.pressed = true;
  EXPECT_TRUE(display.break_requested());
  ProgressBox deletion(display, 0, 1);
  EXPECT_TRUE(display.break_requested());
}

TEST(Break, OfNoBoxEndsWhenOneIsOpened) {
  Display display;
  display.pressed = true;
  EXPECT_TRUE(display.break_requested());
  EXPECT_TRUE(display.break_requested());
  ProgressBox box(display, 0, 1);
  EXPECT_FALSE(display.break_requested());
}

TEST(Caption, IsKeptWhoeverSetIt) {
  Display display;
  EXPECT_EQ(display.caption(), "");
  display.headline("n=3");
  EXPECT_EQ(display.caption(), "n=3");
  display.set_caption("kov");
  EXPECT_EQ(display.caption(), "kov");
  EXPECT_EQ(display.shown, (Shown{"headline n=3", "caption kov"}));
}

}  // namespace
}  // namespace kov
