#include "sums/sums1.h"

#include <gtest/gtest.h>

#include <new>

#include "numbers/errors.h"
#include "sums/sums_display.h"
#include "support/recording_messages.h"
#include "support/recording_progress.h"

namespace kov {
namespace {

class NoQuestions final : public Questions {
 public:
  bool yes_no(const std::string&) override { return unexpected<bool>(); }
  bool all_or_ok(const std::string&) override { return unexpected<bool>(); }
  std::optional<std::string> input(const InputDialog&, const Accept&) override {
    return unexpected<std::optional<std::string>>();
  }
  std::optional<std::filesystem::path> open_file(const std::string&) override {
    return unexpected<std::optional<std::filesystem::path>>();
  }
  std::optional<std::filesystem::path> save_file(const std::string&, const std::filesystem::path&) override {
    return unexpected<std::optional<std::filesystem::path>>();
  }

 private:
  template <class Answer>
  Answer unexpected() {
    ADD_FAILURE() << "a summation asks nothing";
    return Answer{};
  }
};

class Sums1Test : public ::testing::Test {
 protected:
  Sums1Test() { cph.InitPrgPar(WindowFacts{}); }

  SumOutcome sum_up() { return sums1.sum_up_and_report(lmap, table, cph, {messages, questions, progress}); }

  std::string all_results() const {
    std::string text;
    for (int row = 1; row < Slsums1_rows; ++row) {
      for (int column = 1; column < Slsums1_columns; ++column) text += sums1.Slsums1_text(column, row);
    }
    return text;
  }

  RecordingMessages messages;
  NoQuestions questions;
  RecordingProgress progress;
  cphclass cph{messages};
  Lmap lmap;
  RangeTable table;
  Sums1 sums1;
};

constexpr const char* sum_up_invitation = " Double clíck on table \n or close this menu \n to sum up ";

TEST_F(Sums1Test, ShowsNothingAtFirst) {
  EXPECT_EQ(sums1.label(), "");
  EXPECT_EQ(all_results(), "");
  EXPECT_EQ(sums1.Slsums1_text(0, 0), "");
  EXPECT_EQ(sums1.Slsums1_text(3, 0), "     Sum total");
  EXPECT_EQ(sums1.Slsums1_text(0, 20), "s/st: Sum| q |^2/cnt");
}

TEST_F(Sums1Test, DisplaysTheSumsOfTheTable) {
  lmap.set(Lk::at(0, 0, 1), cotyp(1, 3, 0, 1));
  lmap.set(Lk::at(0, 1, 1), cotyp(2));
  EXPECT_EQ(sum_up(), SumOutcome::displayed);
  EXPECT_EQ(sums1.label(), sum_up_invitation);
  // clang-format off
  const char* const expected[][3] = {
      {"1",         "0", "2"},
      {"0.3333333", "0", "2.333333"},
      {"0.3333333", "0", "1.166667"},
      {"0.1111111", "0", "4.111111"},
      {"0.1111111", "0", "2.055556"},
      {"1",         "",  "2"},
      {"1",         "",  "7"},
      {"1",         "",  "3.5"},
      {"1",         "",  "37"},
      {"1",         "",  "18.5"},
      {"",          "",  ""},
      {"",          "",  ""},
      {"",          "",  ""},
      {"",          "",  ""},
      {"",          "",  ""},
      {"0.5",       "",  "1"},
      {"0.1428571", "",  "1"},
      {"0.2857143", "",  "1"},
      {"0.02702703", "", "1"},
      {"0.05405405", "", "1"},
  };
  // clang-format on
  for (int row = 1; row < Slsums1_rows; ++row) {
    for (int column = 1; column < Slsums1_columns; ++column) {
      EXPECT_EQ(sums1.Slsums1_text(column, row), expected[row - 1][column - 1]) << row << ' ' << column;
    }
  }
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Sums1Test, HonoursTheParametersOfTheDisplay) {
  lmap.set(Lk::at(0, 0, 1), cotyp(1, 3, 0, 1));
  cph.setkmi_1("Sums_lt_precision", 2);
  sum_up();
  EXPECT_EQ(sums1.Slsums1_text(1, 2), "0.33");
  cph.setkmi_1("Sums_ShowAsFloat", 0);
  EXPECT_EQ(sums1.Slsums1_text(1, 2), "0.33");
  sum_up();
  EXPECT_EQ(sums1.Slsums1_text(1, 2), "1/3");
}

TEST_F(Sums1Test, ReportsAsOftenAsTheParameterSays) {
  for (std::int32_t k1 = 0; k1 < 4; ++k1) lmap.set(Lk::at(0, 0, k1), 1);
  cph.setkmi_1("Sums_EntryCountPerDisplay", 3);
  sum_up();
  const std::vector<std::string> expected = {"box  Progress 0..4 at 0",
                                             "headline lattice point 3 of 4 summed up",
                                             "box  Progress 0..4 at 3", "break?", "hidden"};
  EXPECT_EQ(progress.calls, expected);
}

TEST_F(Sums1Test, AnEmptyStoreClearsTheLabelAndTheResults) {
  lmap.set(Lk::at(0, 0, 1), 1);
  sum_up();
  lmap.clear();
  progress.calls.clear();
  EXPECT_EQ(sum_up(), SumOutcome::store_empty);
  EXPECT_EQ(sums1.label(), "");
  EXPECT_EQ(all_results(), "");
  EXPECT_TRUE(progress.calls.empty());
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Sums1Test, BreakDisplaysNothing) {
  for (std::int32_t k1 = 0; k1 < 4; ++k1) lmap.set(Lk::at(0, 0, k1), 1);
  sum_up();
  EXPECT_NE(all_results(), "");
  cph.setkmi_1("Sums_EntryCountPerDisplay", 2);
  progress.break_at = 2;
  EXPECT_EQ(sum_up(), SumOutcome::broken);
  EXPECT_EQ(all_results(), "");
  EXPECT_EQ(sums1.label(), sum_up_invitation);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(sum_up(), SumOutcome::displayed);
  EXPECT_NE(all_results(), "");
}

TEST_F(Sums1Test, ANumericErrorIsReportedAndLeavesTheDisplay) {
  lmap.set(Lk::at(0, 0, 1), 1);
  sum_up();
  const std::string before = all_results();
  lmap.set(Lk::at(0, 0, 2), cotyp::floating(1e200, 0.0));
  EXPECT_EQ(sum_up(), SumOutcome::failed);
  EXPECT_EQ(all_results(), before);
  const std::vector<RecordedMessage> expected = {
      {MessageKind::error, " MathError when creating Sums1: \nfloating point overflow"}};
  EXPECT_EQ(messages.shown, expected);
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_EQ(progress.calls.back(), "hidden");
}

TEST_F(Sums1Test, FailuresByKind) {
  struct Case {
    std::function<void()> failure;
    const char* message;
  };
  // clang-format off
  const Case cases[] = {
      {[] { throw floating_overflow("too large"); },   " MathError when creating Sums1: \ntoo large"},
      {[] { throw math_error("not a number"); },       " MathError when creating Sums1: \nnot a number"},
      {[] { throw ratyp_error(); },                    " MathError when creating Sums1: \nratyp error: de=0"},
      {[] { throw program_error("no sum"); },          "Error when creating Sums1"},
      {[] { throw std::bad_alloc(); },                 "Error when creating Sums1"},
  };
  // clang-format on
  lmap.set(Lk::at(0, 0, 1), 1);
  sum_up();
  const std::string before = all_results();
  cph.setkmi_1("Sums_EntryCountPerDisplay", 1);
  for (const Case& c : cases) {
    messages.shown.clear();
    progress.on_headline = c.failure;
    EXPECT_EQ(sum_up(), SumOutcome::failed);
    EXPECT_EQ(messages.texts(), std::vector<std::string>{c.message});
    EXPECT_EQ(all_results(), before);
    EXPECT_FALSE(progress.is_open());
  }
}

TEST_F(Sums1Test, WithoutReportingFailuresPassOn) {
  lmap.set(Lk::at(0, 0, 1), cotyp::floating(1e200, 0.0));
  EXPECT_THROW(sums1.sum_up(lmap, table, cph, progress), floating_overflow);
  EXPECT_TRUE(messages.shown.empty());
}

}  // namespace
}  // namespace kov
