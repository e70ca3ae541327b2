#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "workbench/data_file_texts.h"
#include "workbench/desk.h"

namespace kov {
namespace {

namespace fs = std::filesystem;

TEST(CurrentFile, IsTheOneReadUpToAStep) {
  Desk desk;
  desk.document().cph.setkmi_1("File_in_nelast", 0);
  write_text("x.aa1", rows_file(2));
  desk.run("File", "Read till n", {"x.aa1"});
  EXPECT_EQ(desk.workbench.file.path, fs::current_path() / "x.aa1");
  EXPECT_TRUE(desk.workbench.file.chosen);
  EXPECT_FALSE(desk.workbench.file.read_aborted);
  EXPECT_EQ(desk.run_text("File", "Read again"), "");
  EXPECT_EQ(desk.rows(), "0:1 1:2 2:3");
}

/// A way in which the read of x.aa1 is aborted, once y.aa1 has been read.
struct AbortCase {
  const char* name;
  void (*read)(Desk& desk);
};

class AbortedRead : public testing::TestWithParam<AbortCase> {};

TEST_P(AbortedRead, IsNotSavedOverWithoutADialog) {
  Desk desk;
  write_text("y.aa1", rows_file(1));
  desk.run("File", "Open", {"y.aa1"});
  ASSERT_FALSE(desk.workbench.file.read_aborted);
  const std::string text = "File_IO_PointCountPerDisplay 1 1 9 1\r\n" + point(0, "1") + point(0, "1");
  write_text("x.aa1", text);
  GetParam().read(desk);
  EXPECT_TRUE(desk.lmap().empty());
  const fs::path failed = desk.workbench.file.path;
  EXPECT_TRUE(failed.is_absolute());
  EXPECT_NE(failed.filename(), "y.aa1") << "it is the current file all the same";
  EXPECT_TRUE(desk.workbench.file.chosen);
  EXPECT_TRUE(desk.workbench.file.read_aborted);

  EXPECT_EQ(desk.run_text("File", "Save"), "dialog: Save File: -> cancel");
  EXPECT_EQ(text_of("x.aa1"), text);
  EXPECT_TRUE(desk.workbench.file.read_aborted) << "the dialog was not confirmed";
  EXPECT_EQ(desk.run_text("File", "Save", {"z.aa1"}), "dialog: Save File: -> z.aa1");
  EXPECT_EQ(text_of("x.aa1"), text);
  EXPECT_FALSE(desk.workbench.file.read_aborted);
  EXPECT_EQ(desk.run_text("File", "Save"), "") << "into the file that was chosen";
}

TEST_P(AbortedRead, IsTriedOnceMoreByReadAgain) {
  Desk desk;
  write_text("y.aa1", rows_file(1));
  desk.run("File", "Open", {"y.aa1"});
  write_text("x.aa1", "File_IO_PointCountPerDisplay 1 1 9 1\r\n" + point(0, "1") + point(0, "1"));
  GetParam().read(desk);
  const std::string name = desk.workbench.file.name();
  fs::remove(name);
  write_text(name, rows_file(0));
  EXPECT_EQ(desk.run_text("File", "Read again"), "");
  EXPECT_EQ(desk.rows(), "0:1");
  EXPECT_FALSE(desk.workbench.file.read_aborted);
  EXPECT_EQ(desk.run_text("File", "Save"), "");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(CurrentFile, AbortedRead, testing::Values(
    AbortCase{"ByNo",         [](Desk& desk) { desk.run("File", "Open", {"x.aa1", "no"}); }},
    AbortCase{"ByBreak",      [](Desk& desk) { desk.document().cph.setkmi_1("File_IO_PointCountPerDisplay", 1);
                                               desk.person.break_at_check(1);
                                               desk.run("File", "Open", {"x.aa1"});
                                               desk.person.break_at_check(0); }},
    AbortCase{"ByAReadError", [](Desk& desk) { fs::create_symlink("/proc/self/mem", "unreadable");
                                               desk.run("File", "Open", {"unreadable"}); }}),
    [](const auto& test) { return std::string(test.param.name); });
// clang-format on

}  // namespace
}  // namespace kov
