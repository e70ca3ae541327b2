#include "workbench/start_up.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <string>
#include <vector>

#include "support/failing_allocation.h"
#include "workbench/desk.h"

namespace kov {
namespace {

using Arguments = std::vector<std::filesystem::path>;

constexpr const char* no_file = "kov (no file specified)";
constexpr const char* one_point = "e_l 0 4 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 7\r\n";

TEST(StartUp, WithoutArgumentAndUniformFileKeepsTheDefaults) {
  Desk desk;
  start_up(desk.workbench, desk.user(), {});
  EXPECT_EQ(desk.person.caption(), no_file);
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 20);
  EXPECT_FALSE(desk.workbench.file.chosen);
  EXPECT_TRUE(desk.reports.empty());
}

TEST(StartUp, WithoutArgumentReadsEveryEntryOfTheUniformFile) {
  Desk desk;
  write_text("kovcfg.aa1", std::string("Slq_ColCount 30 2 1000 1\r\nSums1_DefaultTableIndex 6 0 31 0\r\n"
                                       "F1_Initial_Active_Page 4 0 8 0\r\n") +
                               one_point);
  start_up(desk.workbench, desk.user(), {});
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 30);
  EXPECT_EQ(desk.document().ranges.current_index(), 6) << "values are applied";
  EXPECT_EQ(desk.workbench.active_page, 4);
  EXPECT_TRUE(desk.lmap().empty());
  EXPECT_EQ(desk.workbench.file.path, "a.aa1") << "the default name stays in force";
  EXPECT_FALSE(desk.workbench.file.chosen);
  EXPECT_EQ(desk.person.caption(), no_file);
}

TEST(StartUp, WithOneArgumentReadsThatFileWithoutTheUniformOne) {
  Desk desk;
  write_text("kovcfg.aa1", "Slq_ColCount 30 2 1000 1\r\n");
  write_text("x.aa1",
             std::string("Slq_ColCount 25 2 1000 1\r\nAlgadd_DefaultTableIndex 3 0 15 0\r\n") + one_point);
  start_up(desk.workbench, desk.user(), Arguments{"x.aa1"});
  EXPECT_EQ(desk.rows(), "4:7");
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 25);
  EXPECT_EQ(desk.algadd().aanr(), 3);
  EXPECT_EQ(desk.workbench.file.path, std::filesystem::absolute("x.aa1"));
  EXPECT_TRUE(desk.workbench.file.chosen);
  EXPECT_EQ(desk.person.caption(), "nlast = 4 (0.176 KB = 1e)");
}

TEST(StartUp, WithAFileThatCannotBeReadKeepsTheDefaults) {
  Desk desk;
  start_up(desk.workbench, desk.user(), Arguments{"missing.aa1"});
  ASSERT_EQ(desk.reports.size(), 2U);
  EXPECT_NE(desk.reports[1].find("missing.aa1"), std::string::npos);
  EXPECT_EQ(desk.workbench.file.path, "a.aa1");
  EXPECT_FALSE(desk.workbench.file.chosen);
  EXPECT_EQ(desk.person.caption(), no_file);
}

/// Nothing was read, or the read went back to the defaults: in both cases they are in force. Memory that
/// runs out behind a complete read takes nothing back.
void expect_consistent(Desk& desk) {
  const bool complete = desk.workbench.file.chosen;
  EXPECT_EQ(desk.rows(), complete ? "4:7" : "");
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 20);
  EXPECT_EQ(desk.document().cph.kmi("Sums1_DefaultTableIndex"), complete ? 7 : 0);
  EXPECT_EQ(desk.document().ranges.current_index(), complete ? 7 : 0);
}

/// Starts with one allocation after the other failing, in steps that meet every part of a start; gives
/// the number of starts that reported it.
int start_with_failing_allocations(const Arguments& arguments) {
  constexpr int step = 7;
  for (int failures = 0, k = 1;; k += k < 50 ? 1 : step) {
    Desk desk;
    write_text("kovcfg.aa1", "Slq_ColCount 30 2 1000 1\r\nSums1_DefaultTableIndex 6 0 31 0\r\n");
    write_text("x.aa1", std::string("Sums1_DefaultTableIndex 7 0 31 0\r\n") + one_point);
    try {
      const FailingAllocation failing(k);
      start_up(desk.workbench, desk.user(), arguments);
      if (!failing.happened()) return failures;
    } catch (const std::bad_alloc&) {
      ADD_FAILURE() << "allocation " << k << " ended the program";
    }
    if (desk.reports.empty()) continue;  // the library or the caption could do without it
    EXPECT_EQ(desk.reports,
              (std::vector<std::string>{"beep", "error: Not enough memory; the read was ended."}));
    expect_consistent(desk);
    ++failures;
  }
}

TEST(StartUp, ReportsMemoryThatRunsOut) {
  EXPECT_GT(start_with_failing_allocations({}), 10);
  EXPECT_GT(start_with_failing_allocations({"x.aa1"}), 10);
}

TEST(StartUp, WithTwoArgumentsReadsNothing) {
  Desk desk;
  write_text("kovcfg.aa1", "Slq_ColCount 30 2 1000 1\r\n");
  write_text("x.aa1", one_point);
  start_up(desk.workbench, desk.user(), Arguments{"x.aa1", "x.aa1"});
  EXPECT_EQ(desk.reports, (std::vector<std::string>{"beep", "error: Too many start parameters"}));
  EXPECT_TRUE(desk.lmap().empty());
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 20);
  EXPECT_EQ(desk.person.caption(), no_file);
}

}  // namespace
}  // namespace kov
