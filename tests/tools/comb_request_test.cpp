#include "tools/comb_request.h"

#include <gtest/gtest.h>

#include "interact/scripted_user.h"
#include "text/integers.h"

namespace kov {
namespace {

struct Asking {
  std::vector<std::string> reports;
  ScriptedUser person{[this](const std::string& report) { reports.push_back(report); }};
  cphclass cph{person};
  Lmap lmap;
  RangeTables ranges;

  Asking() {
    cph.InitPrgPar(WindowFacts{});
    ranges.current_table().range[0] = {Lk::filled(lowest_int), Lk::filled(highest_int)};
  }

  /// n = 0, 1, ... with the quantities 1, 1/2, 1/3, ...
  void fill(std::int32_t count) {
    for (std::int32_t n = 0; n < count; ++n) lmap.set(Lk::at(0, n), cotyp(1, n + 1, 0, 1));
  }

  std::optional<CombRequest> ask(std::vector<std::string> answers) {
    reports.clear();
    person.set_answers(std::move(answers));
    return ask_for_comb_search(lmap, ranges, cph, person.user());
  }

  /// What was reported behind the dialog.
  std::vector<std::string> behind_dialog() const { return {reports.begin() + 1, reports.end()}; }
};

using Reports = std::vector<std::string>;

TEST(CombRequest, AsksForTwoIntegers) {
  Asking asking;
  asking.ranges.choose(9);
  EXPECT_FALSE(asking.ask({}).has_value());
  EXPECT_EQ(
      asking.reports,
      Reports{
          "dialog: Search Combination: Search combinations whose realpart sum is as near as possible to "
          "1.0 and write results to\n  kovcomb.aa2\n  \n  To search those combinations up to order b<=100\n"
          "  within the a largest cden real parts of the\n  quantities of subspace defined by\n"
          "  Sums1 table9 (first ranges) \n  \n  enter the two integers   a,b -> cancel"});
}

TEST(CombRequest, BothShouldBePositive) {
  Asking asking;
  asking.fill(3);
  for (const char* answer : {"0,1", "1,0", "-1,3", "0,0"}) {
    EXPECT_FALSE(asking.ask({answer}).has_value());
    EXPECT_EQ(asking.behind_dialog(), (Reports{"beep", "error: cden and cnum should be positive"})) << answer;
  }
}

TEST(CombRequest, TakesTheLargestOfRange1OfTheCurrentTable) {
  Asking asking;
  asking.fill(6);
  asking.ranges.choose(3);
  asking.ranges.current_table().range[0] = {Lk::at(0, 2), Lk::at(0, 5)};
  asking.cph.setkmi_1("Combtest1_nscnt", 9);
  asking.cph.setkmi_1("Combtest1_ShowOnlyIncDev", 0);
  asking.cph.setkmi_1("Combtest1_ShowSquaredDev", 1);
  const auto request = asking.ask({"3,2"});
  ASSERT_TRUE(request.has_value());
  EXPECT_TRUE(asking.behind_dialog().empty());
  EXPECT_EQ(request->table, 3);
  EXPECT_EQ(request->candidate_count, 4U);
  EXPECT_EQ(request->order, 2);
  ASSERT_EQ(request->elements.size(), 3U);
  EXPECT_EQ(request->elements[0].re, 1.0 / 3.0);
  EXPECT_EQ(request->elements[2].key, Lk::at(0, 4));
  EXPECT_EQ(request->rules.nearest, 9U);
  EXPECT_FALSE(request->rules.one_per_difference);
  EXPECT_TRUE(request->rules.squares);
}

TEST(CombRequest, DefaultsOfTheParameters) {
  Asking asking;
  asking.fill(1);
  const auto request = asking.ask({"1,1"});
  EXPECT_EQ(request->rules.nearest, 4U);
  EXPECT_TRUE(request->rules.one_per_difference);
  EXPECT_FALSE(request->rules.squares);
}

TEST(CombRequest, ACountThatADataFileHasWidenedIsTakenIntoItsBounds) {
  Asking asking;
  asking.fill(1);
  for (const auto& [line, nearest] : {std::pair{"0 0 127 1", 1U}, std::pair{"100000 1 100000 1", 127U}}) {
    Tokens tokens(line);
    ASSERT_EQ(asking.cph.read_configuration_line("Combtest1_nscnt", tokens, true), "");
    EXPECT_EQ(asking.ask({"1,1"})->rules.nearest, nearest);
  }
}

TEST(CombRequest, BothAreCutDownToWhatThereIs) {
  Asking asking;
  asking.fill(3);
  const auto request = asking.ask({"2000000000,7"});
  EXPECT_EQ(request->elements.size(), 3U);
  EXPECT_EQ(request->candidate_count, 3U);
  EXPECT_EQ(request->order, 3);
  EXPECT_EQ(asking.ask({"2,7"})->order, 2);
  EXPECT_TRUE(asking.behind_dialog().empty()) << "nothing is said of that";
}

TEST(CombRequest, NothingInsideRange1) {
  Asking asking;
  EXPECT_FALSE(asking.ask({"5,2"}).has_value());
  EXPECT_EQ(asking.behind_dialog(), Reports{"message: No combinations to test"});
}

TEST(CombRequest, OrdersBeyond100AreNotTested) {
  Asking asking;
  asking.fill(101);
  for (std::int32_t n = 0; n < 101; ++n) asking.lmap.set(Lk::at(0, n), cotyp(1));
  EXPECT_FALSE(asking.ask({"101,101"}).has_value());
  EXPECT_EQ(asking.behind_dialog(),
            (Reports{"beep", "message: Only combinations up to order 100 will be tested", "beep",
                     "error: Computer cannot handle so many combinations"}));
  asking.ask({"101,100"});
  EXPECT_EQ(asking.behind_dialog(), (Reports{"beep", "error: Computer cannot handle so many combinations"}));
}

TEST(CombRequest, NoMoreThan70000AreConsidered) {
  Asking asking;
  for (std::int32_t n = 0; n < 70001; ++n) asking.lmap.set(Lk::at(0, n), cotyp(n + 1));
  const auto request = asking.ask({"70001,1"});
  ASSERT_TRUE(request.has_value());
  EXPECT_EQ(asking.behind_dialog(),
            (Reports{"beep", "message: Only 70000 largest realparts can be considered"}));
  EXPECT_EQ(request->elements.size(), 70000U);
  EXPECT_EQ(request->elements.back().re, 2.0);
  EXPECT_EQ(request->candidate_count, 70001U);
  EXPECT_EQ(asking.ask({"70000,1"})->elements.size(), 70000U);
  EXPECT_TRUE(asking.behind_dialog().empty());
}

TEST(CombRequest, ManyCombinationsAreAskedFor) {
  Asking asking;
  asking.fill(40);
  asking.cph.setkmi_1("Combtest1_WarnMillions", 268);
  const char* question = "question: Do you really want to test\n  268257056 pm-combinations? -> ";
  EXPECT_TRUE(asking.ask({"40,6", "yes"}).has_value());
  EXPECT_EQ(asking.behind_dialog(), Reports{std::string(question) + "yes"});
  EXPECT_FALSE(asking.ask({"40,6", "no"}).has_value());
  EXPECT_EQ(asking.behind_dialog(), Reports{std::string(question) + "no"});
  asking.cph.setkmi_1("Combtest1_WarnMillions", 269);
  EXPECT_TRUE(asking.ask({"40,6"}).has_value());
  EXPECT_TRUE(asking.behind_dialog().empty());
}

TEST(CombRequest, NotMoreThanTheLimitIsNotAskedFor) {
  Asking asking;
  asking.fill(1);
  asking.cph.setkmi_1("Combtest1_WarnMillions", 0);
  EXPECT_FALSE(asking.ask({"1,1", "no"}).has_value()) << "2 are more than 0 millions";
  for (std::int32_t n = 0; n < 500; ++n) asking.lmap.set(Lk::at(0, n), cotyp(n + 1));
  asking.cph.setkmi_1("Combtest1_WarnMillions", 1);
  EXPECT_TRUE(asking.ask({"500,2"}).has_value()) << "500000 are not more than a million";
}

TEST(CombRequest, WhatIsBeyondAnySearchIsRefused) {
  Asking asking;
  asking.fill(2000);
  EXPECT_FALSE(asking.ask({"2000,50"}).has_value());
  EXPECT_EQ(asking.behind_dialog(), (Reports{"beep", "error: Computer cannot handle so many combinations"}));
  EXPECT_TRUE(asking.ask({"2000,8", "yes"}).has_value()) << "how long is too long is asked";
}

TEST(CombRequest, ACountBeyondTheLargestDoubleIsRefused) {
  Asking asking;
  for (std::int32_t n = 0; n < 70000; ++n) asking.lmap.set(Lk::at(0, n), cotyp(1));
  EXPECT_FALSE(asking.ask({"70000,80"}).has_value());
  EXPECT_EQ(asking.behind_dialog(), (Reports{"beep", "error: Computer cannot handle so many combinations"}));
}

}  // namespace
}  // namespace kov
