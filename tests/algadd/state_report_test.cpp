#include "algadd/state_report.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kov {
namespace {

TEST(TimingText, ShowsTheLastRun) {
  struct Row {
    Algadd::LastRun run;
    const char* text;
  };
  // clang-format off
  const Row rows[] = {
      {{0, 0}, ""},
      {{0, 100}, ""},
      {{1, 100}, "\n\nThe last 100 steps of Algadd needed 1 sec\n resp. 0 hours 0 min 1 sec\n(average: 0.01 seconds per step)"},
      {{59, 59}, "\n\nThe last 59 steps of Algadd needed 59 sec\n resp. 0 hours 0 min 59 sec\n(average: 1 seconds per step)"},
      {{60, 7}, "\n\nThe last 7 steps of Algadd needed 60 sec\n resp. 0 hours 1 min 0 sec\n(average: 8.57143 seconds per step)"},
      {{3600, 1}, "\n\nThe last 1 steps of Algadd needed 3600 sec\n resp. 1 hours 0 min 0 sec\n(average: 3600 seconds per step)"},
      {{7384, 2}, "\n\nThe last 2 steps of Algadd needed 7384 sec\n resp. 2 hours 3 min 4 sec\n(average: 3692 seconds per step)"},
      {{90061, 3}, "\n\nThe last 3 steps of Algadd needed 90061 sec\n resp. 25 hours 1 min 1 sec\n(average: 30020.3 seconds per step)"},
      {{2, 0}, "\n\nThe last 0 steps of Algadd needed 2 sec\n resp. 0 hours 0 min 2 sec"},
  };
  // clang-format on
  for (const Row& row : rows) EXPECT_EQ(timing_text(row.run), row.text);
}

TEST(StateReport, NamesPointsAndBytes) {
  Lmap lmap;
  Algadd algadd;
  EXPECT_EQ(state_report(lmap, algadd), "Lattice:0 non-zero points\nused bytes:0");
  lmap.set(Lk::at(0, 0), 1);
  lmap.set(Lk::at(0, 1), 1);
  algadd.last_run = {4, 2};
  EXPECT_EQ(state_report(lmap, algadd), "Lattice:2 non-zero points\nused bytes:352" + timing_text({4, 2}));
}

TEST(StateReport, OffersAndAnswersTheMemoryProbe) {
  EXPECT_STREQ(memory_probe_offer, "\n\nPress <All> to check all available memory\nelse <OK>");
  EXPECT_EQ(allocatable_text(3210), "3210 MB are allocatable\nusing RAM and virtual memory on HD");
}

TEST(MemoryProbe, FindsEveryLimitInFewTrials) {
  constexpr std::size_t cap = 1000;
  for (std::size_t limit = 0; limit <= cap + 5; ++limit) {
    int trials = 0;
    std::size_t largest_trial = 0;
    const std::size_t found = largest_allocatable(cap, [&](std::size_t number) {
      ++trials;
      largest_trial = std::max(largest_trial, number);
      return number <= limit;
    });
    ASSERT_EQ(found, std::min(limit, cap));
    ASSERT_LE(trials, 22);
    ASSERT_LE(largest_trial, cap);
  }
}

TEST(MemoryProbe, FindsSomeMemoryOnThisMachineAndGivesItBack) {
  const std::size_t megabytes = allocatable_megabytes();
  EXPECT_GE(megabytes, 1u);
  EXPECT_LE(megabytes, 1'000'000u);
  const std::size_t again = allocatable_megabytes();
  EXPECT_GE(again * 2, megabytes) << "the first probe kept what it found";
}

}  // namespace
}  // namespace kov
