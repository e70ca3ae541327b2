#include "workbench/search_comb.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <cmath>
#include <string>
#include <system_error>

#include "text/integers.h"
#include "workbench/desk.h"

namespace kov {
namespace {

/// The points 3/4 and 1/4 inside Range 1, 1 outside.
struct CombDesk : Desk {
  CombDesk() {
    lmap().set(Lk::at(0, 0), cotyp(3, 4, 0, 1));
    lmap().set(Lk::at(0, 0, 5), cotyp(1, 4, 0, 1));
    lmap().set(Lk::at(1, 0), cotyp(1));
    workbench.file.path = "/somewhere/else/walk.aa1";
  }
};

std::string without_date(std::string text) {
  const std::size_t begin = text.find('\n') + 1;
  return text.erase(begin, text.find(" = T.M.J", begin) - begin);
}

TEST(SearchComb, WritesTheFileInTheCurrentDirectory) {
  CombDesk desk;
  const auto reports = desk.run("File", "Search Comb", {"10,2"});
  ASSERT_EQ(reports.size(), 2U);
  EXPECT_EQ(reports[1], message_report("8 pm-combinations tested\nThe results are in kovcomb.aa2."));
  EXPECT_EQ(desk.folder.names(), std::vector<std::string>{"kovcomb.aa2"});
  const std::string text = text_of("kovcomb.aa2");
  EXPECT_EQ(without_date(text),
            "Searching for realpart-combinations whose sum is nearest to 1.0\n"
            " = T.M.J h:m:s\n"
            "walk.aa1 = source, lattice_point_count = 3\n"
            "scope: Sums1 Range1 table 0\n"
            "output: Respectively the 4 best matches of the sums with 1.0\n"
            "Testing combinations up to order 2 within all 2 Elements of S1\n"
            "8 over 1..2 pm-combinations to test\n"
            "\n###### Results of combinations of order 1\n"
            "pm-combinations: plus-minus sign pattern of summation\n\n"
            "1: absdiff to 1.0 =0.25\n+ 0.75 = lmap[0 0]\n\n"
            "2: absdiff to 1.0 =0.75\n+ 0.25 = lmap[0 0 5]\n\n"
            "3: absdiff to 1.0 =1.25\n- 0.25 = lmap[0 0 5]\n\n"
            "4: absdiff to 1.0 =1.75\n- 0.75 = lmap[0 0]\n\n"
            "\n###### Results of combinations of order 2\n"
            "pm-combinations: plus-minus sign pattern of summation\n\n"
            "1: absdiff to 1.0 =0\n+ 0.75 = lmap[0 0]\n+ 0.25 = lmap[0 0 5]\n\n"
            "2: absdiff to 1.0 =0.5\n+ 0.75 = lmap[0 0]\n- 0.25 = lmap[0 0 5]\n\n"
            "3: absdiff to 1.0 =1.5\n- 0.75 = lmap[0 0]\n+ 0.25 = lmap[0 0 5]\n\n"
            "4: absdiff to 1.0 =2\n- 0.75 = lmap[0 0]\n- 0.25 = lmap[0 0 5]\n\n"
            "8 pm-combinations tested\n");
}

TEST(SearchComb, CancelledItLeavesTheOldFile) {
  CombDesk desk;
  write_text("kovcomb.aa2", "old");
  desk.run("File", "Search Comb");
  desk.run("File", "Search Comb", {"0,2"});
  EXPECT_EQ(text_of("kovcomb.aa2"), "old");
  desk.run("File", "Search Comb", {"10,2"});
  EXPECT_TRUE(text_of("kovcomb.aa2").starts_with("Searching for realpart-combinations"));
}

TEST(SearchComb, AFileThatCannotBeWrittenIsReported) {
  CombDesk desk;
  ASSERT_EQ(::mkdir("kovcomb.aa2", 0777), 0);
  const auto reports = desk.run("File", "Search Comb", {"10,2"});
  ASSERT_EQ(reports.size(), 3U);
  EXPECT_EQ(reports[1], "beep");
  EXPECT_EQ(reports[2], "error: Cannot save kovcomb.aa2:\n  " + std::generic_category().message(EISDIR));
  EXPECT_EQ(desk.folder.names(), std::vector<std::string>{"kovcomb.aa2"});
}

/// By the clock on the wall: one second into a search that takes hours.
TEST(SearchComb, BreakLeavesWhatWasFoundSoFar) {
  Desk desk;
  for (std::int32_t k = 1; k <= 60; ++k)
    desk.lmap().set(Lk::at(0, 0, k), cotyp::floating(std::sqrt(k + 0.1), 0.0));
  desk.person.break_at_check(1);
  const auto reports = desk.run("File", "Search Comb", {"60,12", "yes"});
  ASSERT_EQ(reports.size(), 4U);
  EXPECT_TRUE(reports[2].starts_with("caption: ")) << reports[2];
  EXPECT_TRUE(reports[2].ends_with(" pm-combinations tested")) << reports[2];
  const std::string text = text_of("kovcomb.aa2");
  const std::size_t end = text.find("\n\n user break ! \n");
  ASSERT_NE(end, std::string::npos);
  const std::string count = text.substr(text.rfind('\n', text.size() - 2) + 1);
  EXPECT_TRUE(count.ends_with(" pm-combinations tested\n"));
  EXPECT_EQ(reports[3], message_report(count + "The results are in kovcomb.aa2."));
  EXPECT_NE(text.find("###### Results of combinations of order 1\n"), std::string::npos);
  EXPECT_EQ(text.find("###### Results of combinations of order 12\n"), std::string::npos);
}

}  // namespace
}  // namespace kov
