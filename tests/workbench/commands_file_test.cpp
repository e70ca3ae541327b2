#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "workbench/data_file_texts.h"
#include "workbench/desk.h"

namespace kov {
namespace {

namespace fs = std::filesystem;

TEST(File, OpenReadsAFileAndMakesItsFolderTheCurrentOne) {
  Desk desk;
  fs::create_directory("folder");
  write_text("folder/x.aa1", rows_file(1, "F1_Initial_Active_Page 3 0 8 0\r\n"));
  desk.document().inverted = true;
  EXPECT_EQ(desk.run_text("File", "Open", {"folder/x.aa1"}),
            "dialog: Open File and read it: -> folder/x.aa1");
  EXPECT_EQ(desk.rows(), "0:1 1:2");
  EXPECT_TRUE(fs::equivalent(fs::current_path(), desk.folder.path() / "folder"));
  EXPECT_EQ(desk.workbench.file.path, fs::current_path() / "x.aa1");
  EXPECT_TRUE(desk.workbench.file.chosen);
  EXPECT_EQ(desk.workbench.active_page, 3);
  EXPECT_FALSE(desk.document().inverted);
  EXPECT_EQ(desk.person.caption(), "nlast = 1 (0.352 KB = 2e)");
}

TEST(File, OpenLaysTheUniformConfigurationOverTheFile) {
  Desk desk;
  write_text("kovcfg.aa1", "Slq_ColCount 30 2 1000 1\r\nSums1_DefaultTableIndex 9 0 31 0\r\n");
  write_text("x.aa1", rows_file(0, "Slq_ColCount 25 2 1000 1\r\nSums1_DefaultTableIndex 7 0 31 0\r\n"));
  EXPECT_EQ(desk.run_text("File", "Open", {"x.aa1"}),
            "dialog: Open File and read it (uniform config from kovcfg.aa1): -> x.aa1");
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 30);
  EXPECT_EQ(desk.document().ranges.current_index(), 7) << "only the entries of the uniform configuration win";
  EXPECT_EQ(desk.workbench.file.name(), "x.aa1");
}

TEST(File, ReadIndividualKeepsTheFilesOwnConfiguration) {
  Desk desk;
  write_text("kovcfg.aa1", "Slq_ColCount 30 2 1000 1\r\n");
  write_text("x.aa1", rows_file(0, "Slq_ColCount 25 2 1000 1\r\n"));
  EXPECT_EQ(desk.run_text("File", "Read indiv.", {"x.aa1"}),
            "dialog: Read File, use its individual cfg: -> x.aa1");
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 25);
  EXPECT_EQ(desk.rows(), "0:1");
}

TEST(File, ReadTillStopsBehindItsStep) {
  Desk desk;
  desk.document().cph.setkmi_1("File_in_nelast", 2);
  EXPECT_EQ(desk.caption("File", "Read till n"), "Read till n=2");
  write_text("x.aa1", rows_file(5, "Slq_ColCount 25 2 1000 1\r\n"));
  EXPECT_EQ(desk.run_text("File", "Read till n", {"x.aa1"}),
            "dialog: Read all but lattices only till n=2: -> x.aa1");
  EXPECT_EQ(desk.rows(), "0:1 1:2 2:3");
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 25);
}

TEST(File, ReadTillTheSmallestIntegerIsNoReadOfTheConfigurationAlone) {
  Desk desk;
  write_text("widened.aa1", "File_in_nelast -2147483648 -2147483648 2147483647 0\r\n");
  desk.run("File", "Open", {"widened.aa1"});
  ASSERT_EQ(desk.document().cph.kmi("File_in_nelast"), lowest_int);
  desk.fill_rows(0, 2);
  write_text("x.aa1", "\"comment\r\n" + rows_file(1));
  desk.run("File", "Read till n", {"x.aa1"});
  EXPECT_EQ(desk.document().comment, "comment\r\n");
  EXPECT_EQ(desk.rows(), "");
  EXPECT_EQ(desk.workbench.file.name(), "x.aa1");
}

TEST(File, ReadAgainOpensTheDialogBeforeAFileWasChosen) {
  Desk desk;
  write_text("x.aa1", rows_file(0));
  EXPECT_EQ(desk.run_text("File", "Read again", {"x.aa1"}), "dialog: Open File and read it: -> x.aa1");
  write_text("x.aa1", rows_file(2));
  EXPECT_EQ(desk.run_text("File", "Read again"), "");
  EXPECT_EQ(desk.rows(), "0:1 1:2 2:3");
}

TEST(File, CancelledDialogsChangeNothing) {
  for (const char* item : {"Open", "Read again", "Read indiv.", "Read till n", "Read new Cfg", "Save",
                           "Save as", "C. Warnlevel", "Save Cfg", "Reset Cfg"}) {
    Desk desk;
    desk.fill_rows(0, 2);
    desk.document().cph.setkmi_1("Slq_ColCount", 99);
    EXPECT_EQ(desk.run("File", item).size(), 1U) << item;
    EXPECT_EQ(desk.rows(), "0:1 1:2 2:3") << item;
    EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 99) << item;
    EXPECT_EQ(desk.workbench.file.path, "a.aa1") << item;
    EXPECT_FALSE(desk.workbench.file.chosen) << item;
    EXPECT_TRUE(desk.folder.names().empty()) << item;
    EXPECT_EQ(desk.person.wl(), 2) << item;
  }
}

TEST(File, AFileThatCannotBeOpenedChangesNothing) {
  for (const char* item : {"Open", "Read indiv.", "Read till n", "Read new Cfg"}) {
    Desk desk;
    desk.fill_rows(0, 2);
    const auto reports = desk.run("File", item, {"missing.aa1"});
    ASSERT_EQ(reports.size(), 3U) << item;
    EXPECT_EQ(reports[1], "beep");
    EXPECT_EQ(reports[2].substr(0, 7), "error: ");
    EXPECT_NE(reports[2].find("missing.aa1"), std::string::npos);
    EXPECT_EQ(desk.rows(), "0:1 1:2 2:3") << item;
    EXPECT_EQ(desk.workbench.file.path, "a.aa1");
  }
}

TEST(File, AnAbortedReadLeavesTheStartUpState) {
  Desk desk;
  desk.algadd().set_aanr(5);
  desk.fill_rows(0, 2);
  write_text("x.aa1", "Slq_ColCount 25 2 1000 1\r\n" + point(0, "0") + point(1, "2"));
  const auto reports = desk.run("File", "Open", {"x.aa1", "no"});
  ASSERT_EQ(reports.size(), 3U);
  EXPECT_EQ(reports[1], "beep");
  EXPECT_EQ(reports[2],
            question_report("Error reading line 2 of x.aa1:\nentry_lattice: NullQuantity input is "
                            "redundant\n(Abort of reading will cause default init.)\n\nDo you want to "
                            "proceed?",
                            "no"));
  EXPECT_EQ(desk.rows(), "");
  EXPECT_EQ(desk.algadd().aanr(), 0);
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 20);
}

TEST(File, AReadGoesOnAfterAYes) {
  Desk desk;
  write_text("x.aa1", point(0, "0") + point(1, "2"));
  desk.run("File", "Open", {"x.aa1", "yes"});
  EXPECT_EQ(desk.rows(), "1:2");
}

TEST(File, ReadNewCfgTakesTheConfigurationAlone) {
  Desk desk;
  desk.fill_rows(0, 1);
  write_text("x.aa1", rows_file(5, "Slq_ColCount 25 2 1000 1\r\nSums1_DefaultTableIndex 7 0 31 0\r\n"));
  EXPECT_EQ(desk.run_text("File", "Read new Cfg", {"x.aa1"}),
            "dialog: Read uniform configuration only: -> x.aa1");
  EXPECT_EQ(desk.rows(), "0:1 1:2");
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 25);
  EXPECT_EQ(desk.document().ranges.current_index(), 7);
  EXPECT_FALSE(desk.workbench.file.chosen);
  EXPECT_EQ(desk.workbench.file.path, "a.aa1");
  write_text("kovcfg.aa1", "Slq_ColCount 30 2 1000 1\r\n");
  EXPECT_EQ(desk.run_text("File", "Read new Cfg", {"x.aa1"}),
            "dialog: Read uniform configuration only, ignore kovcfg.aa1: -> x.aa1");
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 25);
}

TEST(File, ResetCfgPutsEveryParameterBack) {
  Desk desk;
  desk.document().cph.setkmi_1("Slq_ColCount", 99);
  desk.document().cph.setkmi_1("Sums1_DefaultTableIndex", 7);
  desk.workbench.apply_parameters(desk.person);
  desk.workbench.show_page(Page::config);
  constexpr const char* question = "Do you want to set all program parameters\nto default values?";
  EXPECT_EQ(desk.run_text("File", "Reset Cfg", {"no"}), question_report(question, "no"));
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 99);
  EXPECT_EQ(desk.run_text("File", "Reset Cfg", {"yes"}), question_report(question, "yes"));
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 20);
  EXPECT_EQ(desk.document().ranges.current_index(), 0) << "values are applied";
  EXPECT_EQ(desk.workbench.active_page, 8) << "nothing was read, the page stays";
}

TEST(File, ResetCfgReadsTheUniformConfiguration) {
  Desk desk;
  write_text("kovcfg.aa1", "Slq_ColCount 30 2 1000 1\r\nF1_Initial_Active_Page 3 0 8 0\r\n");
  desk.workbench.show_page(Page::config);
  EXPECT_EQ(desk.run_text("File", "Reset Cfg", {"yes"}),
            question_report("Do you want to set all program parameters\nto default values contained in "
                            "kovcfg.aa1?",
                            "yes"));
  EXPECT_EQ(desk.document().cph.kmi("Slq_ColCount"), 30);
  EXPECT_EQ(desk.workbench.active_page, 3) << "as after every read";
}

TEST(File, SaveAsMakesTheFileTheCurrentOne) {
  Desk desk;
  desk.fill_rows(0, 1);
  EXPECT_EQ(desk.run_text("File", "Save as", {"y.aa1"}), "dialog: Save File: -> y.aa1");
  EXPECT_TRUE(desk.workbench.file.chosen);
  EXPECT_EQ(desk.workbench.file.path, fs::current_path() / "y.aa1");
  EXPECT_NE(text_of("y.aa1").find("\r\n" + point(1, "2")), std::string::npos);
  EXPECT_EQ(desk.folder.names(), std::vector<std::string>{"y.aa1"});
  EXPECT_EQ(desk.person.caption(), "nlast = 1 (0.352 KB = 2e)");
}

TEST(File, SaveAsksForAFileOnlyTheFirstTime) {
  Desk desk;
  desk.fill_rows(0, 0);
  EXPECT_EQ(desk.run_text("File", "Save", {"y.aa1"}), "dialog: Save File: -> y.aa1");
  desk.fill_rows(0, 1);
  EXPECT_EQ(desk.run_text("File", "Save"), "");
  EXPECT_NE(text_of("y.aa1").find(point(1, "2")), std::string::npos);
}

TEST(File, ASaveThatFailsIsReportedAndLeavesTheOldFile) {
  Desk desk;
  fs::create_directory("y.aa1");
  const auto reports = desk.run("File", "Save as", {"y.aa1"});
  ASSERT_EQ(reports.size(), 3U);
  EXPECT_EQ(reports[1], "beep");
  EXPECT_NE(reports[2].find("y.aa1"), std::string::npos);
  EXPECT_TRUE(desk.person.take_failure());
  EXPECT_EQ(desk.workbench.file.path, fs::current_path() / "y.aa1") << "the dialog was confirmed";
  EXPECT_TRUE(desk.workbench.file.chosen);
  EXPECT_EQ(desk.run("File", "Save").size(), 2U) << "fails again, without a dialog";
  EXPECT_EQ(desk.run("File", "Save as", {"no/such/folder/y.aa1"}).size(), 3U);
}

/// A desk with more lattices than are saved without a question.
struct LargeDesk : Desk {
  LargeDesk() {
    document().cph.setkmi_1("File_Save_WarnKB", 100);
    fill_rows(0, 568);
  }
  static std::string question(const char* answer) {
    return question_report(
        "The lattices need 100.144 KB of memory.\nModification of lattice (e.g. choose "
        "last)\nmay be recommendable before saving.\nDo you really want to save all data?",
        answer);
  }
};

TEST(File, ALargeSaveIsAskedAboutAfterTheDialog) {
  LargeDesk desk;
  EXPECT_EQ(desk.run_text("File", "Save as", {"y.aa1", "no"}),
            "dialog: Save File: -> y.aa1\n" + desk.question("no") + "\nmessage: y.aa1 was not saved.");
  EXPECT_FALSE(fs::exists("y.aa1"));
  EXPECT_TRUE(desk.workbench.file.chosen) << "the dialog was confirmed";
  EXPECT_EQ(desk.run_text("File", "Save", {"yes"}), desk.question("yes"));
  EXPECT_TRUE(fs::exists("y.aa1"));
}

TEST(File, ALargeSaveIsNotAskedAboutBelowWarningLevel2) {
  LargeDesk desk;
  desk.person.set_wl(1);
  desk.run("File", "Save as", {"y.aa1"});
  EXPECT_EQ(desk.reports, std::vector<std::string>{"dialog: Save File: -> y.aa1"});
  EXPECT_TRUE(fs::exists("y.aa1"));
}

TEST(File, BreakEndsASaveWithTheOldFileAsItWas) {
  Desk desk;
  desk.fill_rows(0, 3);
  write_text("y.aa1", "old");
  desk.document().cph.setkmi_1("File_IO_PointCountPerDisplay", 1);
  desk.person.break_at_check(1);
  EXPECT_EQ(desk.run("File", "Save as", {"y.aa1"}).back(), "message: y.aa1 was not saved.");
  EXPECT_EQ(text_of("y.aa1"), "old");
  EXPECT_FALSE(desk.person.take_failure());
}

TEST(File, SaveCfgWritesTheUniformConfigurationWithoutLattices) {
  Desk desk;
  desk.fill_rows(0, 3);
  const auto reports = desk.run("File", "Save Cfg", {"yes"});
  ASSERT_EQ(reports.size(), 1U);
  EXPECT_NE(reports[0].find(
                "Do you want to save current configuration as\n  uniform default in   kovcfg.aa1? -> yes"),
            std::string::npos);
  EXPECT_NE(text_of("kovcfg.aa1").find(";Lattice not saved\r\n"), std::string::npos);
  EXPECT_EQ(text_of("kovcfg.aa1").find("e_l "), std::string::npos);
  EXPECT_FALSE(desk.workbench.file.chosen);
  EXPECT_EQ(desk.workbench.file.path, "a.aa1");
}

TEST(File, SaveCfgQuicklyAsksNothing) {
  Desk desk;
  EXPECT_EQ(desk.run_text("File", "Save Cfg quickly"), "");
  EXPECT_TRUE(fs::exists("kovcfg.aa1"));
}

TEST(File, DelCfgFileIsEnabledWhileThereIsOne) {
  Desk desk;
  EXPECT_FALSE(desk.enabled("File", "Del Cfg File"));
  desk.run("File", "Save Cfg quickly");
  EXPECT_TRUE(desk.enabled("File", "Del Cfg File"));
  desk.run("File", "Del Cfg File", {"no"});
  EXPECT_TRUE(fs::exists("kovcfg.aa1"));
  const auto reports = desk.run("File", "Del Cfg File", {"yes"});
  ASSERT_EQ(reports.size(), 1U);
  EXPECT_NE(reports[0].find(
                "Do you want to delete this file, so that complete\n  configuration saved in individual "
                "files is used? -> yes"),
            std::string::npos);
  EXPECT_FALSE(fs::exists("kovcfg.aa1"));
  EXPECT_FALSE(desk.enabled("File", "Del Cfg File"));
}

TEST(File, WarningLevelIsAskedForAndStored) {
  Desk desk;
  EXPECT_EQ(desk.caption("File", "C. Warnlevel"), "Change warnl.  2");
  EXPECT_EQ(
      desk.run_text("File", "C. Warnlevel", {"4"}),
      dialog_report("Change warnlevel wl",
                    "Here you can change the warnlevel:\n  0: Only errors and essential warnings\n  1: "
                    "Additionally beeps on all warnings\n  2: Additionally usual warnings\n  3: All "
                    "warnings\n  4: All warnings and remarks\nare displayed.\n\nTo change the warnlevel wl "
                    "to a new integer i\nenter integer i [0<=i<=4]",
                    "4"));
  EXPECT_EQ(desk.person.wl(), 4);
  EXPECT_EQ(desk.caption("File", "C. Warnlevel"), "Change warnl.  4");
  EXPECT_EQ(desk.preset("File", "C. Warnlevel"), "4");
  desk.run("File", "C. Warnlevel", {"5"});
  EXPECT_EQ(desk.person.wl(), 4);
}

TEST(File, ExitEndsTheProgramAtOnce) {
  Desk desk;
  desk.fill_rows(0, 1);
  EXPECT_EQ(desk.run_text("File", "Exit"), "");
  EXPECT_TRUE(desk.workbench.exit_requested);
}

}  // namespace
}  // namespace kov
