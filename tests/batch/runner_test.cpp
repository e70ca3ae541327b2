#include "batch/runner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <functional>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

#include "batch/session.h"

namespace kov {
namespace {

/// count zeros, each behind a blank.
std::string zeros(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += " 0";
  return text;
}

/// A walk along k1 that starts with 1 at the origin.
std::string walk_file() {
  return "e_aa 0 0 1/2 0 0 1 1" + zeros(29) + "\r\ne_aa 0 1 1/2 0 0 1 -1" + zeros(29) + "\r\ne_l" +
         zeros(32) + " 1\r\n";
}

/// A session with the file walk.aa1 in its folder.
struct WalkSession : Session {
  WalkSession() { write_text("walk.aa1", walk_file()); }
};

TEST(Runner, SucceedsWhenEveryLineDoes) {
  WalkSession session;
  session.run("File/Open: walk.aa1\nAlg/Algadd with del: 2\nPrint status\nEcho end");
  EXPECT_EQ(session.status, 0);
  EXPECT_EQ(session.output, "nlast = 2 (0.528 KB = 3e)\nend\n");
  EXPECT_EQ(session.reports.size(), 2U);
}

TEST(Runner, NothingToDoIsASuccess) {
  EXPECT_EQ(Session().run("").status, 0);
  EXPECT_EQ(Session().run("; a remark only").status, 0);
}

struct FailCase {
  const char* line;
  Reports reports;
};

class Fail : public testing::TestWithParam<FailCase> {};

TEST_P(Fail, IsReportedLastAndEndsTheRun) {
  WalkSession session;
  session.run(std::string("Echo before\n") + GetParam().line + "\nEcho behind");
  EXPECT_EQ(session.status, 1);
  EXPECT_EQ(session.output, "before\n");
  Reports expected = GetParam().reports;
  expected.push_back(std::string("failed: s:2: ") + GetParam().line);
  EXPECT_EQ(session.reports, expected);
}

TEST_P(Fail, IsNoEndWhenTheRunKeepsGoing) {
  WalkSession session;
  session.options.keep_going = true;
  session.run(std::string(GetParam().line) + "\nEcho behind");
  EXPECT_EQ(session.status, 1);
  EXPECT_EQ(session.output, "behind\n");
}

const std::string choose_table =
    "dialog: Algadd Nr.: To choose Algadd table index\n  enter integer i [0<=i<=15] -> ";
const std::string float_question =
    "question: Do you want irreversible conversion\n  of all quantities to floating point? -> ";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Runner, Fail, testing::Values(
    FailCase{"Nonsense",                   {"error: no such line"}},
    FailCase{"File/Opne: x",               {"error: no such command: File/Opne"}},
    FailCase{"File/&Open: x",              {"error: no such command: File/&Open"}},
    FailCase{"Mod/Init n=0 volume",          {"error: no such command: Mod/Init n=0 volume"}},
    FailCase{"Graph2/Button_g2a: 5",       {"error: no such command: Graph2/Button_g2a"}},
    FailCase{"Alg/Start Algadd: 2",        {"error: disabled now: Alg/Start Algadd"}},
    FailCase{"File/Del Cfg File: yes",     {"error: disabled now: File/Del Cfg File"}},
    FailCase{"A/B: 1 |",                   {"error: an empty answer is written \"\""}},
    FailCase{"Alg/Change Algadd Nr",       {choose_table + "cancel"}},
    FailCase{"Alg/Change Algadd Nr:",      {choose_table + "cancel"}},
    FailCase{"Alg/Change Algadd Nr: 16",   {choose_table + "16", "refused: 16"}},
    FailCase{"Alg/Change Algadd Nr: 16 | 3", {choose_table + "16", "refused: 16"}},
    FailCase{"Alg/Change Algadd Nr: \"\"", {choose_table, "refused: "}},
    FailCase{"Mod/All to Float",           {float_question + "cancel"}},
    FailCase{"Mod/All to Float: Yes",      {"refused: Yes", float_question + "cancel"}},
    FailCase{"File/Open: \"\"",            {"dialog: Open File and read it: -> ", "refused: "}},
    FailCase{"Set Slq_ColCount 1001",      {"beep", "error: setkmi_1:\n     Slq_ColCount\n  input i=1001\n  out of range [2..1000]\n   kmi is not set"}},
    FailCase{"Set Nonsense 1",             {"beep", "error: setkmi_1:\n     Nonsense\n  is no valid keyword,\n  perhaps wrong typing in source.\n   kmi is not set"}},
    FailCase{"Set Nonsense x",             {"beep", "error: setkmi_1:\n     Nonsense\n  is no valid keyword,\n  perhaps wrong typing in source.\n   kmi is not set"}},
    FailCase{"Set Slq_ColCount 2.5",       {"beep", "error: Slq_ColCount: i is no int"}},
    FailCase{"Set Slq_ColCount 99999999999", {"beep", "error: setkmi_1:\n     Slq_ColCount\n  input i=99999999999\n  out of range [2..1000]\n   kmi is not set"}},
    FailCase{"Check CB9 on",               {"error: no such check box: CB9"}},
    FailCase{"Check CB0qre",               {"error: expected: Check NAME on, or off"}},
    FailCase{"Print nonsense",             {"error: nothing to print: nonsense"}},
    FailCase{"Print Slg2b",                {"error: nothing to print: Slg2b"}},
    FailCase{"Break 0",                    {"error: expected: Break N, with N from 1 on"}},
    FailCase{"Draw Graph1 x.png",          {"error: this kovbatch was built without pictures"}},
    FailCase{"Radio Graph2 10",            {"error: expected: Radio Graph2 INDEX, with INDEX from 0 to 9"}}));
// clang-format on

TEST(Runner, WhatIsNoFailureIsNone) {
  WalkSession session;
  session.run(
      "Help/State\nHelp/Info: an answer that no dialog asks for\nMod/All to Float: no\nCmd/Del nlast\n"
      "File/Open: walk.aa1\nSet MaxAllowedMemOccupationInKB 100\nAlg/Start Algadd: 40\nPrint status");
  EXPECT_EQ(session.status, 0);
  EXPECT_EQ(session.output, "nlast = 33 (104.720 KB = 595e)\n") << "the memory limit stopped the run";
}

TEST(Runner, YesAnswersTheQuestionsThatALineLeavesOpen) {
  Session session;
  session.options.yes = true;
  session.run("Mod/All to Float\nMod/All to Float: no");
  EXPECT_EQ(session.status, 0);
  EXPECT_EQ(session.reports, (Reports{float_question + "yes", float_question + "no"}));
  session.run("Alg/Change Algadd Nr");
  EXPECT_EQ(session.status, 1) << "an input dialog is no question";
}

TEST(Runner, AnswersDoNotPassToTheNextLine) {
  Session session;
  session.options.keep_going = true;
  session.run("Help/Info: 5\nAlg/Change Algadd Nr");
  EXPECT_EQ(session.reports[1], choose_table + "cancel");
}

TEST(Runner, TraceReportsEachLineBeforeItRuns) {
  Session session;
  session.options.trace = true;
  session.run("Echo a\n\n; remark\n  Nonsense  ");
  EXPECT_EQ(session.reports, (Reports{"line: s:1: Echo a", "line: s:4: Nonsense", "error: no such line",
                                      "failed: s:4: Nonsense"}));
}

TEST(Runner, SetActsAtOnceAndLeavesOtherChoices) {
  Session session;
  session.run("Alg/Change Algadd Nr: 9\nSet Sums1_DefaultTableIndex 4\nSet Slq_ColCount 30\nPrint menu");
  EXPECT_NE(session.output.find("Bar/AA\tAA:9\t"), std::string::npos);
  EXPECT_NE(session.output.find("Bar/S1\tS1:4\t"), std::string::npos);
  EXPECT_EQ(session.status, 0);
}

TEST(Runner, CheckSetsABox) {
  Session session;
  session.inspect = [](const Workbench& workbench) {
    EXPECT_EQ(workbench.range_is_destination, (RangeDestinations{true, false}));
    EXPECT_EQ(workbench.document.cph.kmi("Graph1_CB1qq_checked"), 1);
  };
  EXPECT_EQ(session.run("Check CB_Range2IsDest off\nCheck CB1qq on").status, 0);
}

TEST(Runner, CheckTakesTheEditUnderWay) {
  Session session;
  session.inspect = [](const Workbench& workbench) { EXPECT_EQ(workbench.document.lmap.count(), 1U); };
  EXPECT_EQ(session.run("Key Slq 1,1 7\nCheck CB1qq on").status, 0);
}

TEST(Runner, BreakMeetsTheNextLineThatRunsAnything) {
  WalkSession session;
  session.run(
      "File/Open: walk.aa1\nBreak 3\nEcho this line runs nothing\nSet Slq_ColCount 30\nAlg/Algadd with del: "
      "10\n"
      "Print status\nAlg/Algadd with del: 2\nPrint status");
  EXPECT_EQ(session.output, "this line runs nothing\nnlast = 3 (0.704 KB = 4e)\nnlast = 5 (1.056 KB = 6e)\n");
  EXPECT_EQ(session.status, 0);
}

TEST(Runner, BreakIsUsedUpByALineWithFewerChecks) {
  WalkSession session;
  session.run("File/Open: walk.aa1\nBreak 4\nPrint status\nAlg/Algadd with del: 10\nPrint status");
  EXPECT_EQ(session.output, "nlast = 0 (0.176 KB = 1e)\nnlast = 10 (1.936 KB = 11e)\n");
}

TEST(Runner, BreakMeetsAPrintAsWell) {
  Session session;
  session.run("Mod/Init For Test\nSet Sums_EntryCountPerDisplay 10\nBreak 2\nPrint Slsums1\nPrint Slsums1");
  const std::size_t second = session.output.find("Sum total", session.output.find("Sum total") + 1);
  EXPECT_NE(session.output.substr(0, second).find("s   : cnt\t\t\t\n"), std::string::npos);
  EXPECT_NE(session.output.substr(second).find("s   : cnt\t10\t0\t60\n"), std::string::npos);
  EXPECT_EQ(session.status, 0);
}

TEST(Runner, BreakInAReadAbortsIt) {
  WalkSession session;
  session.run("Set File_IO_PointCountPerDisplay 1\nBreak 1\nFile/Open: walk.aa1\nPrint status");
  EXPECT_EQ(session.output, " Lattices are empty. \n");
}

TEST(Runner, ExitEndsTheScript) {
  Session session;
  session.run("Echo a\nFile/Exit\nEcho b");
  EXPECT_EQ(session.output, "a\n");
  EXPECT_EQ(session.status, 0);
  session.options.keep_going = true;
  EXPECT_EQ(session.run("Nonsense\nFile/Exit\nEcho b").status, 1);
}

TEST(Runner, AnInterruptStopsTheOperationAndTheScript) {
  WalkSession session;
  int checks = 0;
  bool armed = false;
  session.interrupted = [&] { return armed && ++checks > 5; };
  session.inspect = [](const Workbench& workbench) {
    ASSERT_FALSE(workbench.document.lmap.empty());
    EXPECT_GT(workbench.document.lmap.nlast(), 0);
  };
  armed = true;
  session.run("File/Open: walk.aa1\nAlg/Start Algadd 0: 1000000\nEcho not reached");
  EXPECT_EQ(session.status, 130);
  EXPECT_EQ(session.output, "");
}

TEST(Runner, AnInterruptBeforeTheFirstLineRunsNothing) {
  Session session;
  session.interrupted = [] { return true; };
  EXPECT_EQ(session.run("Echo a").status, 130);
  EXPECT_EQ(session.output, "");
}

TEST(Runner, PrintsToAFile) {
  Session session;
  session.run("Mod/Init n=0 with 1\nPrint status > out file.txt\nPrint status");
  EXPECT_EQ(text_of("out file.txt"), "nlast = 0 (0.176 KB = 1e)\n");
  EXPECT_EQ(session.output, "nlast = 0 (0.176 KB = 1e)\n");
  EXPECT_EQ(session.status, 0);
}

TEST(Runner, AFileThatCannotBeWrittenFailsTheLine) {
  Session session;
  session.run("Print menu > no/such/folder/x");
  EXPECT_EQ(session.status, 1);
  ASSERT_EQ(session.reports.size(), 2U);
  EXPECT_EQ(session.reports[0].find("error: no/such/folder/x cannot be written: "), 0U);
  EXPECT_EQ(session.reports[1], "failed: s:1: Print menu > no/such/folder/x");
}

TEST(Runner, ASaveThatFailsFailsTheLine) {
  Session session;
  EXPECT_EQ(session.run("File/Save as: no/such/folder/x.aa1").status, 1);
}

TEST(Runner, CaptionsAreReportedUnlessTheRunIsQuiet) {
  Session session;
  const std::string script = "Set Sums_EntryCountPerDisplay 20\nMod/Init For Test\nPrint Slsums1";
  session.run(script);
  EXPECT_EQ(session.reports,
            (Reports{"caption: lattice point 20 of 60 summed up", "caption: lattice point 40 of 60 summed up",
                     "caption: lattice point 60 of 60 summed up"}));
  session.options.every_caption = false;
  session.run(script);
  ASSERT_GE(session.reports.size(), 2U);
  EXPECT_EQ(session.reports.front(), "caption: lattice point 20 of 60 summed up");
  EXPECT_EQ(session.reports.back(), "caption: lattice point 60 of 60 summed up");
  session.options.quiet = true;
  session.run(script);
  EXPECT_TRUE(session.reports.empty());
}

TEST(Runner, StartsWithTheUniformConfiguration) {
  Session session;
  write_text("kovcfg.aa1", "File_in_nelast 12 0 100 1\r\n");
  session.run("Print menu");
  EXPECT_NE(session.output.find("Read till n=12"), std::string::npos);
  EXPECT_EQ(session.status, 0);
}

constexpr const char* start_question =
    "question: Error reading line 1 of kovcfg.aa1:\n  Slq_ColCount: i is no int\n  (Abort of reading will "
    "cause default "
    "init.)\n  \n  Do you want to proceed? -> ";

TEST(Runner, AQuestionAtTheStartIsAFailureWithoutYes) {
  Session session;
  write_text("kovcfg.aa1", "Slq_ColCount x 2 1000 1\r\n");
  session.run("Echo a");
  EXPECT_EQ(session.status, 1);
  EXPECT_EQ(session.output, "");
  EXPECT_EQ(session.reports, (Reports{"beep", std::string(start_question) + "cancel", "failed: start"}));
  session.options.keep_going = true;
  session.run("Echo a");
  EXPECT_EQ(session.status, 1);
  EXPECT_EQ(session.output, "a\n");
}

TEST(Runner, AQuestionAtTheStartIsAnsweredByYes) {
  Session session;
  session.options.yes = true;
  write_text("kovcfg.aa1", "Slq_ColCount x 2 1000 1\r\n");
  session.run("Echo a");
  EXPECT_EQ(session.status, 0);
  EXPECT_EQ(session.reports, (Reports{"beep", std::string(start_question) + "yes"}));
}

class FailingOutput final : public Output {
 public:
  void write(std::string_view) override {}
  std::string take_failure() override { return "no space"; }
};

TEST(Runner, OutputThatCannotBeWrittenFailsTheLine) {
  const TemporaryFolder folder;
  FailingOutput output;
  Reports reports;
  Runner runner(
      Options{}, output, [&](const std::string& report) { reports.push_back(report); }, [] { return false; });
  EXPECT_EQ(runner.run(script_lines("s", "Echo a")), ExitStatus::line_failed);
  EXPECT_EQ(reports.front(), "error: standard output cannot be written: no space");
}

/// Fails at its first write in the way that it is given, and collects what comes afterwards.
class ThrowingOutput final : public Output {
 public:
  explicit ThrowingOutput(std::function<void()> fail) : fail_(std::move(fail)) {}
  void write(std::string_view text) override {
    if (fail_) std::exchange(fail_, nullptr)();
    collected += text;
  }
  std::string collected;

 private:
  std::function<void()> fail_;
};

TEST(Runner, AnExceptionFailsItsLineAlone) {
  struct Case {
    void (*fail)();
    const char* report;
  };
  // clang-format off
  const Case cases[] = {
      {[] { throw std::bad_alloc(); },              "error: Not enough memory; the line was ended."},
      {[] { throw std::runtime_error("no paper"); }, "error: no paper"},
  };
  // clang-format on
  for (const Case& c : cases) {
    const TemporaryFolder folder;
    ThrowingOutput output(c.fail);
    Options options;
    options.keep_going = true;
    Reports reports;
    Runner runner(
        options, output, [&](const std::string& report) { reports.push_back(report); }, [] { return false; });
    EXPECT_EQ(runner.run(script_lines("s", "Echo a\nEcho b")), ExitStatus::line_failed);
    EXPECT_EQ(reports, (Reports{c.report, "failed: s:1: Echo a"}));
    EXPECT_EQ(output.collected, "b\n");
  }
}

TEST(Runner, TwoHalvesWithASaveBetweenEqualTheWholeRun) {
  WalkSession session;
  Lmap whole;
  session.inspect = [&](const Workbench& workbench) { whole = workbench.document.lmap; };
  session.run("File/Open: walk.aa1\nAlg/Algadd with del: 200");
  ASSERT_EQ(whole.nlast(), 200);
  session.inspect = [&](const Workbench& workbench) {
    const Lmap& halves = workbench.document.lmap;
    ASSERT_EQ(halves.count(), whole.count());
    for (auto a = whole.begin(), b = halves.begin(); a != whole.end(); ++a, ++b) {
      ASSERT_EQ(a.key(), b.key());
      const double expected = to_double(a.quantity().re);
      ASSERT_NEAR(to_double(b.quantity().re), expected, std::abs(expected) * 1e-13);
    }
  };
  session.run(
      "File/Open: walk.aa1\nAlg/Algadd with del: 100\nFile/Save as: half.aa1\nFile/Open: half.aa1\n"
      "Alg/Algadd with del: 100");
  EXPECT_EQ(session.status, 0);
}

}  // namespace
}  // namespace kov
