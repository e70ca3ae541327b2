#include "datafile/reader.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

#include "file_desk.h"
#include "support/failing_allocation.h"
#include "support/points_text.h"
#include "text/integers.h"

namespace kov {
namespace {

using Reports = std::vector<std::string>;

std::string question(int line, const std::string& message, const std::string& answer) {
  return "question: Error reading line " + int_text(line) + " of read.aa1:\n  " + message +
         "\n  (Abort of reading will cause default init.)\n  \n  Do you want to proceed? -> " + answer;
}

TEST(ReadDataFile, GivesBackWhatWasWritten) {
  FileDesk written;
  fill_every_part(written.document);
  const std::string text = written.state();
  FileDesk read;
  EXPECT_EQ(read.read_text(text), ReadOutcome::completed);
  EXPECT_EQ(read.state(), text);
  EXPECT_EQ(read.reports, Reports{});
  EXPECT_EQ(read.document.comment, written.document.comment);
}

TEST(ReadDataFile, GivesBackALastCommentLineWithoutALineEnd) {
  FileDesk desk;
  desk.document.comment = "one\r\ntwo";
  const std::string text = desk.state();
  desk.read_text(text);
  EXPECT_EQ(desk.document.comment, "one\r\ntwo\r\n");
  EXPECT_EQ(desk.state(), text);
}

TEST(ReadDataFile, TakesLinesInAnyOrderAndWithLfAlone) {
  FileDesk desk;
  fill_every_part(desk.document);
  const std::string expected = desk.state();
  // Backwards, but for the lines of the comment, whose order is what they say.
  std::string backwards;
  std::string comment;
  for (std::size_t begin = 0; begin < expected.size();) {
    const std::size_t end = expected.find("\r\n", begin);
    const std::string line = expected.substr(begin, end - begin) + "\n";
    if (line.front() == '"') {
      comment += line;
    } else {
      backwards = line + backwards;
    }
    begin = end + 2;
  }
  std::string text = comment + backwards;
  text.pop_back();
  EXPECT_EQ(desk.read_text(text), ReadOutcome::completed);
  EXPECT_EQ(desk.state(), expected);
}

TEST(ReadDataFile, TakesAFileOfConfigurationLinesOnly) {
  FileDesk desk;
  fill_every_part(desk.document);
  EXPECT_EQ(desk.read_text("Slq_ColCount 33 2 1000 1"), ReadOutcome::completed);
  EXPECT_EQ(desk.document.cph.kmi("Slq_ColCount"), 33);
  EXPECT_TRUE(desk.document.lmap.empty());
  EXPECT_EQ(desk.document.comment, "");
}

TEST(ReadDataFile, MakesAWholeFileTheCurrentOne) {
  FileDesk desk;
  desk.document.inverted = true;
  desk.read_text("");
  EXPECT_EQ(desk.current.path, desk.folder.path() / "read.aa1");
  EXPECT_TRUE(desk.current.chosen);
  EXPECT_FALSE(desk.document.inverted);
}

TEST(ReadDataFile, OfTheCurrentFileReadsItAgain) {
  FileDesk desk;
  desk.read_text("\"a\n");
  EXPECT_EQ(desk.read(desk.current.path), ReadOutcome::completed);
  EXPECT_EQ(desk.document.comment, "a\r\n");
  EXPECT_EQ(desk.current.path, desk.folder.path() / "read.aa1");
}

TEST(ReadDataFile, ReportsAFileThatCannotBeOpenedAndChangesNothing) {
  FileDesk desk;
  fill_every_part(desk.document);
  const std::string before = desk.state();
  EXPECT_EQ(desk.read("none.aa1"), ReadOutcome::not_opened);
  EXPECT_EQ(desk.read(desk.folder.path()), ReadOutcome::not_opened);
  EXPECT_EQ(desk.state(), before);
  EXPECT_EQ(desk.current.path, "a.aa1");
  EXPECT_FALSE(desk.current.chosen);
  const auto reason = [](std::errc error) { return std::make_error_code(error).message(); };
  EXPECT_EQ(
      desk.reports,
      (Reports{"beep", "error: Cannot open none.aa1:\n  " + reason(std::errc::no_such_file_or_directory),
               "beep",
               "error: Cannot open " + desk.folder.path().string() + ":\n  " +
                   reason(std::errc::is_a_directory)}));
}

TEST(ReadDataFile, AsksAboutEachBadLineFromLevelTwoOn) {
  FileDesk desk;
  desk.scripted.set_answers({"yes", "yes"});
  const std::string text =
      "; remark\n\ne_lpd x\r\n" + point_line(0, 0, 0, "1") + "\n" + point_line(0, 0, 0, "1");
  EXPECT_EQ(desk.read_text(text), ReadOutcome::completed);
  EXPECT_EQ(desk.reports, (Reports{"beep", question(3, "e_lpd: lsiz_of_infile is no int", "yes"), "beep",
                                   question(5, "entry_lattice: coordinate already occupied", "yes")}));
  EXPECT_EQ(points_text(desk.document.lmap), "0 0: 1\n");
  EXPECT_TRUE(desk.current.chosen);
}

TEST(ReadDataFile, GoesOnSilentlyBelowLevelTwoAndWithoutABeepAtLevelZero) {
  for (const int level : {0, 1}) {
    FileDesk desk;
    desk.scripted.set_wl(level);
    EXPECT_EQ(desk.read_text("e_lpd x\n\"kept"), ReadOutcome::completed);
    EXPECT_EQ(desk.reports, level == 0 ? Reports{} : Reports{"beep"});
    EXPECT_EQ(desk.document.comment, "kept\r\n");
  }
}

TEST(ReadDataFile, AnsweredWithNoLeavesTheStartUpState) {
  FileDesk desk;
  const std::string at_start = desk.state();
  fill_every_part(desk.document);
  const std::string text = desk.state() + "e_lpd x\r\n\"more\r\n";
  desk.scripted.set_answers({"no"});
  EXPECT_EQ(desk.read_text(text), ReadOutcome::aborted);
  EXPECT_EQ(desk.state(), at_start);
  EXPECT_FALSE(desk.current.chosen);
  EXPECT_TRUE(desk.current.read_aborted);
  desk.read_text("");
  EXPECT_FALSE(desk.current.read_aborted);
}

TEST(ReadDataFile, MetByBreakLeavesTheStartUpState) {
  FileDesk desk;
  const std::string at_start = desk.state();
  fill_every_part(desk.document);
  desk.document.cph.setkmi_1("File_IO_PointCountPerDisplay", 2);
  const std::string text = desk.state();
  desk.scripted.break_at_check(2);
  EXPECT_EQ(desk.read_text(text), ReadOutcome::aborted);
  EXPECT_EQ(desk.state(), at_start);
  EXPECT_TRUE(desk.current.read_aborted);
  EXPECT_FALSE(desk.scripted.is_open());
}

TEST(ReadDataFile, LooksForBreakAlsoWherePointsAreRare) {
  FileDesk desk;
  std::string text;
  for (int i = 0; i < 5000; ++i) text += ";\n";
  desk.scripted.break_at_check(1);
  EXPECT_EQ(desk.read_text(text), ReadOutcome::aborted);
}

TEST(ReadDataFile, ShowsItsProgressEverySoManyPoints) {
  FileDesk desk;
  desk.document.cph.setkmi_1("File_IO_PointCountPerDisplay", 2);
  std::string text = "File_IO_PointCountPerDisplay 1 1 9 1\ne_lpd 6 176 32\n";
  for (int k = 0; k < 5; ++k) text += point_line(0, 0, k, "1") + "\n;\n";
  EXPECT_EQ(desk.read_text(text), ReadOutcome::completed);
  // The rate is the one from before the read: a file does not change it on the way.
  EXPECT_EQ(desk.reports, (Reports{"caption: lattice point 2 of 6 read from read.aa1",
                                   "caption: lattice point 4 of 6 read from read.aa1"}));
}

TEST(ReadDataFile, TakesARateThatAFilePutOutOfBoundsAsOne) {
  FileDesk desk;
  desk.read_text("File_IO_PointCountPerDisplay 0 -5 5 1");
  ASSERT_EQ(desk.document.cph.kmi("File_IO_PointCountPerDisplay"), 0);
  EXPECT_EQ(desk.read_text(point_line(0, 0, 0, "1")), ReadOutcome::completed);
  EXPECT_EQ(desk.reports, Reports{"caption: lattice point 1 of 0 read from read.aa1"});
}

TEST(ReadDataFile, UpToAStepStopsAtTheFirstPointBehindIt) {
  FileDesk desk;
  const std::string text = point_line(0, 2, 0, "1") + "\n" + point_line(0, 3, 0, "1") + "\n" +
                           point_line(0, 4, 0, "1") + "\n" + point_line(0, 1, 0, "1") + "\ne_lpd x\n";
  EXPECT_EQ(desk.read_text(text, 3), ReadOutcome::completed);
  EXPECT_EQ(points_text(desk.document.lmap), "0 2: 1\n0 3: 1\n");
  EXPECT_EQ(desk.reports, Reports{});
  EXPECT_TRUE(desk.current.chosen);
}

TEST(ReadDataFile, OfTheConfigurationLeavesTheRestAlone) {
  FileDesk desk;
  fill_every_part(desk.document);
  desk.document.inverted = true;
  std::string expected = desk.state();
  expected.replace(expected.find("Slq_ColCount 25"), 15, "Slq_ColCount 77");
  const std::string text =
      "\"comment\nSlq_ColCount 77 2 1000 1\n" + point_line(0, 0, 0, "1") + "\nSlq_RowCount x\n";
  EXPECT_EQ(desk.read_text(text, configuration_only), ReadOutcome::completed);
  EXPECT_EQ(desk.state(), expected);
  EXPECT_TRUE(desk.document.inverted);
  EXPECT_FALSE(desk.current.chosen);
  EXPECT_EQ(desk.current.path, "a.aa1");
}

TEST(ReadDataFile, OfTheConfigurationThatIsAbortedRestoresTheDefaultsAlone) {
  FileDesk desk;
  const int default_count = desk.document.cph.kmi("Slq_ColCount");
  fill_every_part(desk.document);
  desk.scripted.set_answers({"no"});
  EXPECT_EQ(desk.read_text("Slq_ColCount 77 2 1000 1\nSlq_RowCount x", configuration_only),
            ReadOutcome::aborted);
  EXPECT_FALSE(desk.current.read_aborted);
  EXPECT_EQ(desk.document.cph.kmi("Slq_ColCount"), default_count);
  EXPECT_EQ(desk.document.cph.kmi("Graph2a_ny"), 0);
  EXPECT_EQ(desk.document.lmap.count(), 4U);
  EXPECT_NE(desk.document.comment, "");
  EXPECT_EQ(desk.document.algadd.used_length(0), 3);
}

TEST(ReadDataFile, ThatFailsOnTheWayIsAbortedAndReported) {
  FileDesk desk;
  const std::string at_start = desk.state();
  fill_every_part(desk.document);
  EXPECT_EQ(desk.read("/proc/self/mem"), ReadOutcome::aborted);
  EXPECT_EQ(desk.state(), at_start);
  EXPECT_TRUE(desk.current.read_aborted);
  ASSERT_EQ(desk.reports.size(), 2U);
  EXPECT_TRUE(desk.reports[1].starts_with("error: Cannot read /proc/self/mem:\n")) << desk.reports[1];
}

TEST(ReadDataFile, WhoseMemoryRunsOutLeavesTheStartUpState) {
  FileDesk desk;
  const std::string at_start = desk.state();
  std::string text = "Slq_ColCount 77 2 1000 1\n\"comment\n";
  for (int k = 0; k < 20; ++k) text += point_line(0, 0, k, "1") + "\n";
  write_text("read.aa1", text);
  fill_every_part(desk.document);
  int failed = 0;
  int begun = 0;
  for (std::int64_t k = 1;; ++k) {
    const std::string before = desk.state();
    bool happened = false;
    try {
      const FailingAllocation failing(k);
      desk.read("read.aa1");
      happened = failing.happened();
    } catch (const std::bad_alloc&) {
      happened = true;
      ++failed;
      // Memory that runs out before the file is open has changed nothing.
      const std::string after = desk.state();
      ASSERT_TRUE(after == at_start || after == before) << k;
      if (after == at_start) ++begun;
      ASSERT_FALSE(desk.scripted.is_open());
    }
    if (!happened) break;
    fill_every_part(desk.document);
  }
  EXPECT_GT(begun, 20);
  EXPECT_GT(failed, begun);
  EXPECT_EQ(desk.document.lmap.count(), 20U);
}

TEST(ReadDataFile, GoesOnAfterTenThousandErrors) {
  FileDesk desk;
  desk.scripted.set_yes(true);
  std::string text;
  for (int i = 0; i < 10000; ++i) text += "e_l x\n";
  EXPECT_EQ(desk.read_text(text + "\"kept"), ReadOutcome::completed);
  EXPECT_EQ(desk.reports.size(), 20000U);
  EXPECT_EQ(desk.reports.back(), question(10000, "entry_lattice: sscanf = 0 instead of 33", "yes"));
  EXPECT_EQ(desk.document.comment, "kept\r\n");
}

TEST(ReadDataFile, TakesALineOfAHundredMegabytes) {
  FileDesk desk;
  desk.scripted.set_wl(0);
  std::string text = "e_l " + std::string(100'000'000, ' ') + "1\n\"kept";
  EXPECT_EQ(desk.read_text(text), ReadOutcome::completed);
  EXPECT_EQ(desk.document.comment, "kept\r\n");
  text.assign(5'000'000, '\0');
  EXPECT_EQ(desk.read_text(text + "\n\"kept"), ReadOutcome::completed);
  EXPECT_EQ(desk.document.comment, "kept\r\n");
}

}  // namespace
}  // namespace kov
