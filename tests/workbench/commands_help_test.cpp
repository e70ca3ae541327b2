#include <gtest/gtest.h>

#include <string>

#include "workbench/compilation_date.h"
#include "workbench/desk.h"

namespace kov {
namespace {

TEST(Help, InfoShowsTheDateAndWhatTheProgramIsFor) {
  Desk desk;
  EXPECT_EQ(
      desk.run_text("Help", "Info"),
      message_report(std::string("Date of this version:  ") + CompilationDateClass::date +
                     "\n\nDescription:\n Software for testing algorithms\n on multidimensional numerical "
                     "lattices\n and for visualization the results\n"));
}

TEST(Help, DateHasTheFormMonthDayYear) {
  const std::string date = CompilationDateClass::date;
  ASSERT_EQ(date.size(), 11U);
  std::string form;
  for (const char c : date) form += ('A' <= c && c <= 'z') ? 'a' : ('0' <= c && c <= '9') ? '9' : c;
  EXPECT_TRUE(form == "aaa 99 9999" || form == "aaa  9 9999") << date;
}

constexpr const char* state_of_two_points =
    "Lattice:2 non-zero points\nused bytes:352\n\nPress <All> to check all available memory\nelse <OK>";

TEST(Help, StateEndsAfterOk) {
  Desk desk;
  desk.fill_rows(0, 1);
  EXPECT_EQ(desk.run_text("Help", "State", {"ok"}), question_report(state_of_two_points, "ok"));
  EXPECT_EQ(desk.run_text("Help", "State"), question_report(state_of_two_points, "ok"));
  EXPECT_FALSE(desk.person.take_failure());
}

TEST(Help, StateProbesTheMemoryAfterAll) {
  Desk desk;
  desk.fill_rows(0, 1);
  const auto reports = desk.run("Help", "State", {"all"});
  ASSERT_EQ(reports.size(), 2U);
  EXPECT_EQ(reports[0], question_report(state_of_two_points, "all"));
  EXPECT_NE(reports[1].find(" MB are allocatable\n  using RAM and virtual memory on HD"), std::string::npos);
}

TEST(Help, StateTellsHowLongTheLastRunTook) {
  Desk desk;
  desk.algadd().last_run = {7384, 100};
  EXPECT_NE(desk.run_text("Help", "State", {"ok"})
                .find("\n  The last 100 steps of Algadd needed 7384 sec\n   resp. 2 hours 3 min 4 sec"),
            std::string::npos);
}

}  // namespace
}  // namespace kov
