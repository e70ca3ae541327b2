#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "batch/key_names.h"
#include "batch/session.h"
#include "text/integers.h"

namespace kov {
namespace {

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find(separator, begin), text.size());
    parts.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return parts;
}

TEST(KeyNames, AreOneCharacterOrTheNameOfAKey) {
  using Name = GridKey::Name;
  const std::vector<std::pair<const char*, Name>> named = {{"Enter", Name::enter},
                                                           {"Esc", Name::escape},
                                                           {"Tab", Name::tab},
                                                           {"Up", Name::up},
                                                           {"Down", Name::down},
                                                           {"PageUp", Name::page_up},
                                                           {"PageDown", Name::page_down},
                                                           {"Ctrl+PageUp", Name::first_page},
                                                           {"Ctrl+PageDown", Name::last_page}};
  for (const auto& [text, name] : named) {
    ASSERT_TRUE(key_named(text)) << text;
    EXPECT_EQ(key_named(text)->name, name) << text;
  }
  for (const char c : {'a', 'A', '0', ':', '-', '\x7f'}) {
    const auto key = key_named(std::string(1, c));
    ASSERT_TRUE(key);
    EXPECT_EQ(key->name, Name::character);
    EXPECT_EQ(key->character, c);
  }
  for (const char* text : {"", "enter", "Enter ", "Ctrl+A", "Backspace", "12", "í"}) {
    EXPECT_FALSE(key_named(text)) << text;
  }
}

TEST(PrintGrid, WritesRowsAsLinesAndCellsSeparatedByTabs) {
  Session session;
  session.run("Set Slq_ColCount 3\nSet Slq_RowCount 3\nCell Slq 2,2 1/2+3i\nPrint Slq");
  EXPECT_EQ(session.output, "-y=n  x=k1\t0\t1\n0\t0\t0\n1\t0\t1/2+3i\n");
  EXPECT_EQ(session.status, 0);
}

struct SizeCase {
  const char* grid;
  Page page;
  std::size_t rows;
  std::size_t columns;
};

class PrintedGrid : public testing::TestWithParam<SizeCase> {};

TEST_P(PrintedGrid, IsWholeAndShowsItsPage) {
  Session session;
  session.inspect = [](const Workbench& workbench) {
    EXPECT_EQ(workbench.active_page, static_cast<int>(GetParam().page));
  };
  session.run(std::string("Mod/Init For Test\nUtil/ActPage: 2\nPrint ") + GetParam().grid);
  EXPECT_EQ(session.status, 0);
  const auto lines = split(session.output, '\n');
  EXPECT_EQ(lines.size(), GetParam().rows);
  for (const std::string& line : lines) {
    EXPECT_EQ(std::count(line.begin(), line.end(), '\t') + 1,
              static_cast<std::ptrdiff_t>(GetParam().columns));
  }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, PrintedGrid, testing::Values(
    SizeCase{"Slq",      Page::lattices, 50, 20},
    SizeCase{"Sldim",    Page::lattices, 32, 2},
    SizeCase{"Sllist",   Page::list,     60, 34},
    SizeCase{"SlAlgadd", Page::algadd,   35, 257},
    SizeCase{"Slds1",    Page::sums1,    33, 5},
    SizeCase{"Slsums1",  Page::sums1,    21, 4},
    SizeCase{"Slsums2",  Page::sums2,    26, 2},
    SizeCase{"Slconfig", Page::config,   86, 5}));
// clang-format on

TEST(PrintGrid, WritesIntoAFile) {
  Session session;
  session.run("Print Sldim > sldim.txt");
  EXPECT_EQ(session.output, "");
  EXPECT_EQ(text_of("sldim.txt").substr(0, 16), "l\t0\nn=-y\t0\nk1=x\t");
}

TEST(PrintGrid, TakesWhatIsBeingTypedButMovesNothing) {
  Session session;
  session.run(
      "Set Slq_ColCount 3\nSet Slq_RowCount 3\nKey Slq 1,1 4\nKey Slq 1,1 2\nPrint Slq\nKey Slq 1,1 P\n"
      "Print Slq");
  EXPECT_EQ(session.output, "-y=n  x=k1\t0\t1\n0\t42\t0\n1\t0\t0\n-y=n  x=k1\t0\t1\n0\t43\t0\n1\t0\t0\n");
}

TEST(PrintLabel, ShowsItsPageAndWritesTheText) {
  Session session;
  session.inspect = [](const Workbench& workbench) { EXPECT_EQ(workbench.active_page, 7); };
  session.run(
      "Print label Algadd\nPrint label Sums1\nPrint label Sums2\nMod/Init n=0 with 1\nPrint label Sums1\n"
      "Print label  Sums2\nPrint label Graph1\nPrint label Graph2");
  EXPECT_EQ(session.output,
            " Table 0   ( 1 empty in 0..0 ,    16 empty in 0..15 ) \n\n\n"
            " Double clíck on table \n or close this menu \n to sum up \n\n Click on checkboxes to draw "
            "Sums1 along x\n\n");
  EXPECT_EQ(session.status, 0);
}

TEST(PrintLabel, TellsThatBreakStoppedSums2) {
  Session session;
  session.run("Mod/Init For Test\nSet Sums_EntryCountPerDisplay 10\nBreak 2\nPrint label Sums2");
  EXPECT_EQ(session.output, " Creating Sums2 was stopped by Break \n");
}

TEST(CellLines, ReplaceTheTextAndLeaveTheCell) {
  Session session;
  session.run(
      "Cell Slq 3,2 6/4\nPrint status\nCell Slq 3,2 0\nPrint status\nCell Sldim 1,1 7\nCell Slq 1,1 5\n"
      "Print lattice");
  EXPECT_EQ(session.output.find("nlast = 1 (0.176 KB = 1e)\n Lattices are empty. \n1\t5\t0\t7\t0\t"), 0U);
  EXPECT_EQ(session.status, 0);
}

TEST(CellLines, WhatIsRefusedBeepsAndIsNoFailure) {
  Session session;
  session.run("Cell Slq 3,2 1/0\nCell Slds1 1,3\nCell SlAlgadd 1,2 x\nCell Slconfig 4,1 x\nPrint status");
  EXPECT_EQ(session.reports, (Reports{"beep", "beep", "beep"})) << "the Config page undoes in silence";
  EXPECT_EQ(session.status, 0);
  EXPECT_EQ(session.output, " Lattices are empty. \n");
}

TEST(CellLines, ShowTheirPageUnlessItIsShown) {
  Session session;
  session.inspect = [](const Workbench& workbench) { EXPECT_EQ(workbench.active_page, 4); };
  session.run("Mod/Init For Test\nSet Sums_EntryCountPerDisplay 60\nCell Slds1 1,3 -5\nCell Slds1 1,3 -4");
  EXPECT_EQ(session.reports, (Reports{"caption: lattice point 60 of 60 summed up"}));
}

TEST(KeyLines, TypeCharacterByCharacter) {
  Session session;
  session.run("Key Slq 1,1 -\nKey Slq 1,1 3\nPrint status\nKey Slq 1,1 Enter\nPrint status\nKey Slq 2,1 x");
  EXPECT_EQ(session.output, "nlast = 0 (0.176 KB = 1e)\nnlast = 0 (0.176 KB = 1e)\n");
  EXPECT_EQ(session.reports, Reports{"beep"});
  EXPECT_EQ(session.status, 0);
}

TEST(KeyLines, ScrollTheListByAllButOneOfItsRows) {
  std::string points;
  std::string zeros;
  for (int i = 0; i < 30; ++i) zeros += " 0";
  for (int n = 0; n < 200; ++n) points += "e_l 0 " + int_text(n) + zeros + " 1\r\n";
  Session session;
  write_text("x.aa1", points);
  const auto first_number_after = [&session](const std::string& keys) {
    session.run("File/Open: x.aa1\n" + keys + "\nPrint Sllist");
    return split(split(session.output, '\n')[1], '\t')[0];
  };
  EXPECT_EQ(first_number_after("Key Sllist 0,1 PageDown"), "59");
  EXPECT_EQ(first_number_after("Key Sllist 0,1 PageDown\nKey Sllist 0,1 PageUp"), "1");
  EXPECT_EQ(first_number_after("Key Sllist 0,1 Down\nKey Sllist 0,1 Down\nKey Sllist 0,1 Up"), "2");
  EXPECT_EQ(first_number_after("Key Sllist 0,1 Ctrl+PageDown"), "142");
  EXPECT_EQ(first_number_after("Key Sllist 0,1 Ctrl+PageDown\nKey Sllist 0,1 Ctrl+PageUp"), "1");
  EXPECT_EQ(first_number_after("Click Sllist 0,1 right: 30"), "31");
}

TEST(KeyLines, MayEnableTheCommandBehindThem) {
  Session session;
  session.run("Mod/Init n=0 with 1\nKey SlAlgadd 1,1 2\nAlg/Start Algadd: 0");
  EXPECT_EQ(session.status, 0) << "what was typed is taken before the command is looked at";
}

TEST(ClickLines, OpenDialogsThatTheirAnswersAnswer) {
  Session session;
  session.run("Mod/Init n=0 with 1\nClick Sllist 0,1 right: 0\nClick Sllist 0,1 left");
  EXPECT_EQ(session.reports,
            (Reports{"dialog: New list start: To display lattice listing\n  beginning with n_start = a\n"
                     "  enter integer a -> 0"}));
  EXPECT_EQ(session.status, 0);
  EXPECT_EQ(session.run("Click Sllist 0,1 right").status, 1) << "no answer is a cancel, which fails";
  EXPECT_EQ(session.run("Click Sllist 0,1 right: x").status, 1);
  EXPECT_EQ(session.run("Click Sllist 0,1 left: 3\nClick Sllist 0,1 right").status, 1)
      << "an answer that no dialog asked for is gone";
}

TEST(ClickLines, OpenTheMenusOfPages) {
  Session session;
  session.inspect = [](const Workbench& workbench) {
    EXPECT_TRUE(workbench.algadd_menu_open);
    EXPECT_TRUE(workbench.sums1.menu_open());
  };
  EXPECT_EQ(session.run("Click SlAlgadd 3,1 right\nClick Slds1 1,3 right").status, 0);
}

TEST(ClickLines, DoubleOnTheRangeTableSumsUp) {
  Session session;
  session.run(
      "Mod/Init For Test\nSet Sums_EntryCountPerDisplay 60\nClick Slds1 1,1 right\nClick Slds1 1,1 double");
  const std::string summed = "caption: lattice point 60 of 60 summed up";
  EXPECT_EQ(session.reports, (Reports{summed, summed})) << "the page that is shown, then the double click";
}

TEST(GridLines, MeetABreak) {
  Session session;
  const std::string start = "Mod/Init For Test\nSet Sums_EntryCountPerDisplay 10\nUtil/ActPage: 4\n";
  session.inspect = [](const Workbench& workbench) { EXPECT_FALSE(workbench.sums1.results_shown()); };
  session.run(start + "Break 1\nKey Slds1 1,1 Enter");
  session.run(start + "Break 1\nClick Slds1 1,1 double");
  session.run(start + "Break 1\nCell Slds1 1,1 0\nKey Slds1 1,1 Enter");
  session.inspect = [](const Workbench& workbench) { EXPECT_TRUE(workbench.sums1.results_shown()); };
  session.run(start + "Break 1\nKey Slds1 1,1 Up\nKey Slds1 1,1 Enter");
}

TEST(GridLines, OfAnActivePageFollowCommands) {
  Session session;
  session.run(
      "Mod/Init For Test\nSet Sums_EntryCountPerDisplay 60\nUtil/ActPage: 4\nMod/Init For Test\nPrint "
      "caption");
  const std::string summed = "caption: lattice point 60 of 60 summed up";
  EXPECT_EQ(std::count(session.reports.begin(), session.reports.end(), summed), 2);
  EXPECT_EQ(session.output, "lattice point 60 of 60 summed up\n");
}

TEST(GridLines, ThatCannotBeCarriedOutFail) {
  const std::vector<std::pair<const char*, const char*>> cases = {
      {"Cell Slg2b 1,1 5", "error: no such grid: Slg2b"},
      {"Key slq 1,1 P", "error: no such grid: slq"},
      {"Click Sums1 1,1 left", "error: no such grid: Sums1"},
      {"Key Slq 1,1 Return", "error: no such key: Return"},
      {"Cell Slq 20,1 5", "error: no such cell: Slq 20,1"},
      {"Cell Slq 1,50 5", "error: no such cell: Slq 1,50"},
      {"Key Slq -1,1 P", "error: no such cell: Slq -1,1"},
      {"Click Slq 1,-1 left", "error: no such cell: Slq 1,-1"},
      {"Cell Slq 0,1 5", "error: a cell that cannot be edited: Slq 0,1"},
      {"Cell Sllist 1,1 5", "error: a cell that cannot be edited: Sllist 1,1"},
      {"Cell Slg2a 0,1 5", "error: a cell that cannot be edited: Slg2a 0,1"},
      {"Key Slg2a 1,1 1", "error: no such cell: Slg2a 1,1"},
      {"Cell Slconfig 3,1 5", "error: a cell that cannot be edited: Slconfig 3,1"},
  };
  for (const auto& [line, error] : cases) {
    Session session;
    session.run(std::string(line) + "\nEcho behind");
    EXPECT_EQ(session.reports, (Reports{error, std::string("failed: s:1: ") + line}));
    EXPECT_EQ(session.status, 1) << line;
    EXPECT_EQ(session.output, "") << line;
  }
}

}  // namespace
}  // namespace kov
