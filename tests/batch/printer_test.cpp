#include "batch/printer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "batch/session.h"

namespace kov {
namespace {

constexpr const char* tabbed_zeros =
    "\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0";

TEST(Print, StatusAndCaption) {
  Session session;
  session.run("Print caption\nPrint status\nMod/Init n=0 with 1_1\nPrint status\nPrint caption");
  EXPECT_EQ(session.output,
            "kov (no file specified)\n Lattices are empty. \nnlast = 0 (0.352 KB = 2e)\nnlast = 0 (0.352 KB "
            "= 2e)\n");
}

TEST(Print, LatticeInTheColumnsOfTheListPage) {
  Session session;
  session.run("Mod/Init n=0 with 1_1\nCmd/Move All: -3\nPrint lattice");
  EXPECT_EQ(session.output,
            std::string("1\t1\t0\t-3\t0") + tabbed_zeros + "\n2\t1\t1\t-3\t0" + tabbed_zeros + "\n");
  EXPECT_EQ(std::count(session.output.begin(), session.output.end(), '\t'), 2 * 33);
}

TEST(Print, LatticeOfAnEmptyStoreIsNothing) { EXPECT_EQ(Session().run("Print lattice").output, ""); }

TEST(Print, CommentLineByLine) {
  Session session;
  session.run("Print comment\nComment first\nComment\nComment   third: | >\nPrint comment");
  EXPECT_EQ(session.output, "first\n\n  third: | >\n");
}

TEST(Print, CommentWhoseLastLineHasNoEnd) {
  std::vector<std::string> reports;
  ScriptedUser person([&](const std::string& report) { reports.push_back(report); });
  Workbench workbench(person, WindowFacts{});
  workbench.document.comment = "first\r\nlast";
  std::string text;
  StringOutput output(text);
  Pages pages(workbench, person.user());
  find_printer("comment", workbench, pages, person.user())(output);
  EXPECT_EQ(text, "first\nlast\n");
}

TEST(Print, MenuWithLiveCaptionShortcutAndState) {
  Session session;
  session.run("Set File_in_nelast 7\nPrint menu");
  EXPECT_EQ(
      session.output.find("File/Open\tOpen\tCtrl+O\tenabled\nFile/Read again\tRead again\tCtrl+R\tenabled\n"),
      0U);
  for (const char* line :
       {"\nFile/Read till n\tRead till n=7\t\tenabled\n", "\nFile/Del Cfg File\tDel Cfg File\t\tdisabled\n",
        "\nAlg/Start Algadd\tStart Algadd 0\t\tdisabled\n", "\nBar/AA\tAA:0\t\tenabled\n",
        "\nSums1/Change Table Number\tChoose new Table (curr.: 0)\t\tenabled\n"}) {
    EXPECT_NE(session.output.find(line), std::string::npos) << line;
  }
}

TEST(Print, Slsums1SumsUpAndShowsItsPage) {
  Session session;
  session.inspect = [](const Workbench& workbench) { EXPECT_EQ(workbench.active_page, 4); };
  session.run("Mod/Init For Test\nPrint Slsums1");
  EXPECT_EQ(session.output.find("\t          Sum 1\t          Sum 2\t     Sum total\n"
                                "s   : cnt\t10\t0\t60\n"
                                "s   : Sum  q  \t55\t0\t134.75\n"),
            0U);
  EXPECT_EQ(std::count(session.output.begin(), session.output.end(), '\n'), 21);
  EXPECT_EQ(std::count(session.output.begin(), session.output.end(), '\t'), 21 * 3);
}

TEST(Print, Slsums1OfAnEmptyStoreHasLabelsOnly) {
  Session session;
  session.run("Print Slsums1");
  EXPECT_NE(session.output.find("\ns   : cnt\t\t\t\n"), std::string::npos);
  EXPECT_EQ(session.status, 0);
}

TEST(Print, CommentOfManyLines) {
  std::string comment;
  std::string expected;
  for (int i = 0; i < 200000; ++i) {
    comment += "a line of the comment\r\n";
    expected += "a line of the comment\n";
  }
  std::vector<std::string> reports;
  ScriptedUser person([&](const std::string& report) { reports.push_back(report); });
  Workbench workbench(person, WindowFacts{});
  workbench.document.comment = comment;
  std::string text;
  StringOutput output(text);
  Pages pages(workbench, person.user());
  find_printer("comment", workbench, pages, person.user())(output);
  EXPECT_EQ(text, expected);
}

TEST(Print, EveryNameIsFound) {
  ScriptedUser person([](const std::string&) {});
  Workbench workbench(person, WindowFacts{});
  Pages pages(workbench, person.user());
  const auto names = printer_names();
  EXPECT_EQ(names.front(), "status");
  for (const std::string_view name : names) {
    EXPECT_TRUE(find_printer(name, workbench, pages, person.user())) << name;
  }
}

TEST(Print, OtherWordsAreUnknown) {
  ScriptedUser person([](const std::string&) {});
  Workbench workbench(person, WindowFacts{});
  Pages pages(workbench, person.user());
  for (const char* what : {"Status", "slsums1", "", "Slg2b", "Graph3", "Graph2 0x", "Graph2 5",
                           "Graph2 1000x700 2", "label", "label Lattices", "label sums1", "labels Sums1"}) {
    EXPECT_FALSE(find_printer(what, workbench, pages, person.user())) << what;
  }
}

}  // namespace
}  // namespace kov
