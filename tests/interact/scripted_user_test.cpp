#include "interact/scripted_user.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>

#include "support/temporary_folder.h"
#include "text/integers.h"

namespace kov {
namespace {

using Reports = std::vector<std::string>;

class ScriptedUserTest : public ::testing::Test {
 protected:
  Reports reports;
  ScriptedUser user{[this](const std::string& report) { reports.push_back(report); },
                    ScriptedUser::Captions::every};

  /// The reports since the last call.
  Reports taken() { return std::exchange(reports, {}); }
};

const auto takes_all = [](const std::string&) { return true; };
const auto takes_none = [](const std::string&) { return false; };

// Messages

TEST_F(ScriptedUserTest, ReportsAnErrorAfterItsBeepAndCountsItAsFailure) {
  user.error("Not found");
  EXPECT_EQ(taken(), (Reports{"beep", "error: Not found"}));
  EXPECT_TRUE(user.take_failure());
  EXPECT_FALSE(user.take_failure());
}

TEST_F(ScriptedUserTest, ReportsEveryOtherBoxAsMessageWithoutFailure) {
  user.set_wl(4);
  user.essential_warning("a");
  user.warning("b");
  user.minor_warning("c");
  user.remark("d");
  user.information("e");
  user.beep();
  EXPECT_EQ(taken(), (Reports{"beep", "message: a", "beep", "message: b", "beep", "message: c", "message: d",
                              "message: e", "beep"}));
  EXPECT_FALSE(user.take_failure());
}

TEST_F(ScriptedUserTest, IndentsSecondAndLaterLines) {
  user.information("one\ntwo\n\n  four\n");
  user.information("\nerror: planted");
  user.yes_no("Really\nproceed?");
  EXPECT_EQ(taken(), (Reports{"message: one\n  two\n  \n    four\n  ", "message: \n  error: planted",
                              "question: Really\n  proceed? -> cancel"}));
}

// Questions

struct Choice {
  std::vector<std::string> answers;
  bool yes_set;
  bool result;
  bool failure;
  Reports reports;
};

TEST_F(ScriptedUserTest, AnswersYesOrNo) {
  // clang-format off
  const std::vector<Choice> rows = {
      {{"yes"},    false, true,  false, {"question: Go? -> yes"}},
      {{"no"},     false, false, false, {"question: Go? -> no"}},
      {{"no"},     true,  false, false, {"question: Go? -> no"}},
      {{},         false, false, true,  {"question: Go? -> cancel"}},
      {{},         true,  true,  false, {"question: Go? -> yes"}},
      {{"Yes"},    false, false, true,  {"refused: Yes", "question: Go? -> cancel"}},
      {{"NO"},     true,  false, true,  {"refused: NO", "question: Go? -> cancel"}},
      {{"y"},      false, false, true,  {"refused: y", "question: Go? -> cancel"}},
      {{""},       true,  false, true,  {"refused: ", "question: Go? -> cancel"}},
      {{"cancel"}, false, false, true,  {"refused: cancel", "question: Go? -> cancel"}},
      {{"all"},    false, false, true,  {"refused: all", "question: Go? -> cancel"}},
  };
  // clang-format on
  for (const Choice& row : rows) {
    user.set_answers(row.answers);
    user.set_yes(row.yes_set);
    EXPECT_EQ(user.yes_no("Go?"), row.result);
    EXPECT_EQ(taken(), row.reports);
    EXPECT_EQ(user.take_failure(), row.failure);
    EXPECT_EQ(user.answers_left(), 0U);
  }
}

TEST_F(ScriptedUserTest, AnswersAllOrOk) {
  // clang-format off
  const std::vector<Choice> rows = {
      {{"all"}, false, true,  false, {"question: State -> all"}},
      {{"ok"},  false, false, false, {"question: State -> ok"}},
      {{},      false, false, false, {"question: State -> ok"}},
      {{},      true,  false, false, {"question: State -> ok"}},
      {{"yes"}, true,  false, true,  {"refused: yes", "question: State -> cancel"}},
      {{"OK"},  false, false, true,  {"refused: OK", "question: State -> cancel"}},
  };
  // clang-format on
  for (const Choice& row : rows) {
    user.set_answers(row.answers);
    user.set_yes(row.yes_set);
    EXPECT_EQ(user.all_or_ok("State"), row.result);
    EXPECT_EQ(taken(), row.reports);
    EXPECT_EQ(user.take_failure(), row.failure);
  }
}

TEST_F(ScriptedUserTest, TakesTheAnswersInTheirOrder) {
  user.set_answers({"left over"});
  user.set_answers({"yes", "7", "no"});
  EXPECT_EQ(user.answers_left(), 3U);
  EXPECT_TRUE(user.yes_no("a"));
  EXPECT_EQ(user.input({"b", "c", ""}, takes_all), "7");
  EXPECT_FALSE(user.yes_no("d"));
  EXPECT_EQ(user.answers_left(), 0U);
  EXPECT_FALSE(user.take_failure());
}

// Input dialogs

TEST_F(ScriptedUserTest, TypesAnAnswerIntoAnInputDialog) {
  user.set_answers({"7"});
  EXPECT_EQ(user.input({"Title", "To do it\nenter integer i", "1"}, takes_all), "7");
  EXPECT_EQ(taken(), (Reports{"dialog: Title: To do it\n  enter integer i -> 7"}));
  EXPECT_FALSE(user.take_failure());
}

TEST_F(ScriptedUserTest, TypesAnEmptyAnswerToo) {
  user.set_answers({""});
  EXPECT_EQ(user.input({"Title", "p", "1"}, takes_all), "");
  EXPECT_EQ(taken(), (Reports{"dialog: Title: p -> "}));
  EXPECT_FALSE(user.take_failure());
}

TEST_F(ScriptedUserTest, CancelsAnInputDialogThatRefusesTheAnswer) {
  user.set_answers({"seven", "7"});
  EXPECT_EQ(user.input({"Title", "p", "1"}, takes_none), std::nullopt);
  EXPECT_EQ(taken(), (Reports{"dialog: Title: p -> seven", "refused: seven"}));
  EXPECT_TRUE(user.take_failure());
  EXPECT_EQ(user.answers_left(), 1U);
}

TEST_F(ScriptedUserTest, CancelsAnInputDialogWithoutAnAnswerEvenIfQuestionsAreAnsweredYes) {
  user.set_yes(true);
  EXPECT_EQ(user.input({"Title", "p", "1"}, takes_all), std::nullopt);
  EXPECT_EQ(taken(), (Reports{"dialog: Title: p -> cancel"}));
  EXPECT_TRUE(user.take_failure());
}

// File dialogs

class ScriptedUserFiles : public ScriptedUserTest {
 protected:
  ScriptedUserFiles() { std::filesystem::create_directory(folder / "sub"); }

  TemporaryFolder temporary;
  /// As the current directory is named, links resolved.
  std::filesystem::path folder = std::filesystem::current_path();
};

TEST_F(ScriptedUserFiles, ChoosesAFileOfTheCurrentDirectory) {
  user.set_answers({"a.aa1"});
  EXPECT_EQ(user.open_file("Open"), folder / "a.aa1");
  EXPECT_EQ(taken(), (Reports{"dialog: Open: -> a.aa1"}));
  EXPECT_EQ(std::filesystem::current_path(), folder);
  EXPECT_FALSE(user.take_failure());
}

TEST_F(ScriptedUserFiles, MakesTheFolderOfAChosenFileTheCurrentDirectory) {
  user.set_answers({"sub/a.aa1", "b.aa1", (folder / "c.aa1").string(), "sub/../d.aa1"});
  EXPECT_EQ(user.open_file("Open"), folder / "sub/a.aa1");
  EXPECT_EQ(std::filesystem::current_path(), folder / "sub");
  EXPECT_EQ(user.save_file("Save", "preset.aa1"), folder / "sub/b.aa1");
  EXPECT_EQ(user.open_file("Open"), folder / "c.aa1");
  EXPECT_EQ(std::filesystem::current_path(), folder);
  EXPECT_EQ(user.open_file("Open"), folder / "sub/../d.aa1");
  EXPECT_EQ(std::filesystem::current_path(), folder);
  EXPECT_EQ(taken(),
            (Reports{"dialog: Open: -> sub/a.aa1", "dialog: Save: -> b.aa1",
                     "dialog: Open: -> " + (folder / "c.aa1").string(), "dialog: Open: -> sub/../d.aa1"}));
  EXPECT_FALSE(user.take_failure());
}

TEST_F(ScriptedUserFiles, LeavesAFolderThatThereIsNotToTheCaller) {
  std::ofstream("file").put('x');
  user.set_answers({"nowhere/a.aa1", "file/a.aa1"});
  EXPECT_EQ(user.open_file("Open"), folder / "nowhere/a.aa1");
  EXPECT_EQ(user.save_file("Save", "x"), folder / "file/a.aa1");
  EXPECT_EQ(std::filesystem::current_path(), folder);
  EXPECT_FALSE(user.take_failure());
}

TEST_F(ScriptedUserFiles, KeepsAPathRelativeWhenTheCurrentDirectoryIsGone) {
  std::filesystem::current_path(folder / "sub");
  std::filesystem::remove(folder / "sub");
  user.set_answers({"a.aa1"});
  EXPECT_EQ(user.open_file("Open"), "a.aa1");
  EXPECT_FALSE(user.take_failure());
}

TEST_F(ScriptedUserFiles, RefusesAnEmptyPath) {
  user.set_answers({"", ""});
  EXPECT_EQ(user.open_file("Open"), std::nullopt);
  EXPECT_TRUE(user.take_failure());
  EXPECT_EQ(user.save_file("Save", "preset.aa1"), std::nullopt);
  EXPECT_TRUE(user.take_failure());
  EXPECT_EQ(taken(), (Reports{"dialog: Open: -> ", "refused: ", "dialog: Save: -> ", "refused: "}));
}

TEST_F(ScriptedUserFiles, CancelsWithoutAnAnswer) {
  user.set_yes(true);
  EXPECT_EQ(user.open_file("Open"), std::nullopt);
  EXPECT_TRUE(user.take_failure());
  EXPECT_EQ(user.save_file("Save", "preset.aa1"), std::nullopt);
  EXPECT_TRUE(user.take_failure());
  EXPECT_EQ(taken(), (Reports{"dialog: Open: -> cancel", "dialog: Save: -> cancel"}));
}

// Break

TEST_F(ScriptedUserTest, MeetsBreakAtTheGivenCheckAndFromThenOn) {
  for (const int n : {1, 2, 5}) {
    user.break_at_check(n);
    ProgressBox box(user, 0, 1);
    for (int check = 1; check <= 7; ++check)
      EXPECT_EQ(user.break_requested(), check >= n) << n << " " << check;
  }
}

TEST_F(ScriptedUserTest, MeetsBreakOnlyOnce) {
  user.break_at_check(1);
  {
    ProgressBox box(user, 0, 1);
    EXPECT_TRUE(user.break_requested());
  }
  ProgressBox box(user, 0, 1);
  for (int check = 0; check < 5; ++check) EXPECT_FALSE(user.break_requested());
}

TEST_F(ScriptedUserTest, CountsChecksOverAllBoxes) {
  user.break_at_check(3);
  {
    ProgressBox box(user, 0, 1);
    EXPECT_FALSE(user.break_requested());
  }
  EXPECT_FALSE(user.break_requested());
  ProgressBox run(user, 0, 1);
  {
    ProgressBox deletion(user, 0, 1);
    EXPECT_TRUE(user.break_requested());
  }
  EXPECT_TRUE(user.break_requested());
}

TEST_F(ScriptedUserTest, TakesABreakBack) {
  user.break_at_check(2);
  EXPECT_FALSE(user.break_requested());
  user.break_at_check(0);
  for (int check = 0; check < 5; ++check) EXPECT_FALSE(user.break_requested());
  user.break_at_check(1);
  EXPECT_TRUE(user.break_requested());
  user.break_at_check(0);
  EXPECT_FALSE(user.break_requested());
}

TEST_F(ScriptedUserTest, MeetsAnInterruptAsBreakInEveryOperation) {
  bool interrupted = false;
  user.set_interrupted([&interrupted] { return interrupted; });
  EXPECT_FALSE(user.break_requested());
  interrupted = true;
  for (int operation = 0; operation < 2; ++operation) {
    ProgressBox box(user, 0, 1);
    EXPECT_TRUE(user.break_requested());
  }
}

// Captions

TEST_F(ScriptedUserTest, ReportsEveryCaptionOfAnOperationWhenAskedTo) {
  {
    ProgressBox box(user, 0, 100);
    for (int n = 0; n < 4; ++n) {
      box.at(n);
      user.headline("n=" + int_text(n));
    }
  }
  EXPECT_EQ(taken(), (Reports{"caption: n=0", "caption: n=1", "caption: n=2", "caption: n=3"}));
}

TEST_F(ScriptedUserTest, DoesNotReportCaptionsOfNoOperation) {
  user.set_caption("kov (no file specified)");
  EXPECT_EQ(taken(), Reports{});
  EXPECT_EQ(user.caption(), "kov (no file specified)");
}

class ThinnedCaptions : public ScriptedUserTest {
 protected:
  ScriptedUser thinned{[this](const std::string& report) { reports.push_back(report); }};

  static constexpr int count = 20000;
  void run_operation() {
    ProgressBox box(thinned, 0, count);
    for (int n = 0; n < count; ++n) thinned.headline(int_text(n));
  }
};

TEST_F(ThinnedCaptions, ReportTheFirstAndTheLastOfEveryOperation) {
  for (int operation = 0; operation < 2; ++operation) {
    const auto start = std::chrono::steady_clock::now();
    run_operation();
    const auto tenths = (std::chrono::steady_clock::now() - start) / CaptionPace::interval;
    const Reports seen = taken();
    ASSERT_GE(seen.size(), 2U);
    EXPECT_EQ(seen.front(), "caption: 0");
    EXPECT_EQ(seen.back(), "caption: " + int_text(count - 1));
    EXPECT_LE(seen.size(), static_cast<std::size_t>(tenths) + 2);
  }
  EXPECT_EQ(thinned.caption(), int_text(count - 1));
}

TEST_F(ThinnedCaptions, CountAnInnerBoxToItsOperation) {
  const auto start = std::chrono::steady_clock::now();
  ProgressBox run(thinned, 0, 1);
  for (int n = 0; n < count; ++n) {
    ProgressBox deletion(thinned, 0, 1);
    thinned.headline("caption");
  }
  const auto tenths = (std::chrono::steady_clock::now() - start) / CaptionPace::interval;
  EXPECT_LE(reports.size(), static_cast<std::size_t>(tenths) + 1);
}

TEST_F(ThinnedCaptions, ReportEveryHeadlineOutsideABox) {
  for (const char* text : {"a", "b", "c"}) thinned.headline(text);
  EXPECT_EQ(taken(), (Reports{"caption: a", "caption: b", "caption: c"}));
}

TEST_F(ThinnedCaptions, AreFlushedOnDemand) {
  thinned.open("box", 0, 1);
  thinned.headline("a");
  thinned.headline("b");
  thinned.flush_captions();
  thinned.flush_captions();
  EXPECT_EQ(taken(), (Reports{"caption: a", "caption: b"}));
  thinned.close();
  EXPECT_EQ(taken(), Reports{});
}

TEST(QuietUser, ReportsNoCaptionButKeepsIt) {
  Reports reports;
  ScriptedUser user([&reports](const std::string& report) { reports.push_back(report); },
                    ScriptedUser::Captions::none);
  user.headline("outside");
  {
    ProgressBox box(user, 0, 1);
    user.headline("a");
    user.headline("b");
  }
  user.flush_captions();
  EXPECT_EQ(reports, Reports{});
  EXPECT_EQ(user.caption(), "b");
}

}  // namespace
}  // namespace kov
