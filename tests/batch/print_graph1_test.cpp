#include "batch/print_graph1.h"

#include <gtest/gtest.h>

#include "batch/session.h"

namespace kov {
namespace {

constexpr const char* heading = "range\tcolumn\tx\tqre\tqim\tqq\tqa\tcntAt\n";

TEST(PrintGraph1, OfAnEmptyStoreIsItsHeading) {
  Session session;
  session.inspect = [](const Workbench& workbench) {
    EXPECT_EQ(workbench.active_page, static_cast<int>(Page::graph1));
  };
  EXPECT_EQ(session.run("Print Graph1").output, heading);
  EXPECT_EQ(session.status, 0);
}

TEST(PrintGraph1, HasALineForEachColumnWithAPoint) {
  Session session;
  session.run("Mod/Init n=0 with 1_1\nPrint Graph1\nPrint Graph1 50x20");
  EXPECT_EQ(session.output,
            std::string(heading) + "1\t500\t0\t1\t0\t1\t1\t1\n" + heading + "1\t25\t0\t1\t0\t1\t1\t1\n");
}

TEST(PrintGraph1, HasBothRangesAndExactNumbers) {
  Session session;
  session.run(
      "Mod/Init n=0 with 1_1\nSums1/Copy Min to Max\nSet Graph1_CB1qa_checked 1\nSet Graph1_divmode 1\n"
      "Cell Slds1 1,3 -\nCell Slds1 2,3 +\nCell Slds1 4,3 +\nCell Slds1 3,3 -\nCell Slds1 4,1 1\n"
      "Cell Slds1 3,1 -5\nPrint Graph1 10x1");
  EXPECT_EQ(session.output, std::string(heading) + "1\t5\t0\t1\t0\t1\t1\t1\n2\t5\t0\t1\t0\t1\t1\t1\n");
}

TEST(PrintGraph1, ATooWideImageIsNoFailure) {
  Session session;
  session.run("Mod/Init n=0 with 1\nPrint Graph1 6000x700");
  EXPECT_EQ(session.status, 0);
  EXPECT_EQ(session.output, std::string(heading) + "1\t2500\t0\t1\t0\t1\t1\t1\n");
  EXPECT_EQ(session.reports,
            (Reports{"beep", "message: Calc_gc_from_lgl: hpixcount=6000 set to G1Chainsize=5000"}));
}

TEST(PrintGraph1, OtherSizesAreRefused) {
  for (const char* line : {"Print Graph1 50", "Print Graph1 50x", "Print Graph1 50x20 x",
                           "Print Graph1 -5x20", "Print graph1", "Print Graph12"}) {
    Session session;
    session.run(line);
    EXPECT_EQ(session.status, 1) << line;
    EXPECT_EQ(session.output, "") << line;
  }
}

TEST(PrintGraph1, BreakLeavesTheHeadingAlone) {
  Session session;
  session.run(
      "Set Graph_EntryCountPerDisplay 1\nMod/Init n=0 with 1\nBreak 2\nPrint Graph1\nPrint label Graph1");
  EXPECT_EQ(session.output, std::string(heading) + " Click on checkboxes to draw Sums1 along x\n");
  EXPECT_EQ(session.status, 0);
}

}  // namespace
}  // namespace kov
