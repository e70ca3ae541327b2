#include "batch/script.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace kov {
namespace {

using Lines = std::vector<SourceLine>;

TEST(ScriptLines, LeaveOutEmptyLinesAndRemarks) {
  const Lines expected{{"s.kov", 2, "File/Open: x"}, {"s.kov", 5, "Echo a  b"}, {"s.kov", 7, "last"}};
  EXPECT_EQ(script_lines("s.kov", "; remark\nFile/Open: x\n\n  \t\n  Echo a  b \t\r\n   ; remark\nlast"),
            expected);
}

TEST(ScriptLines, SkipAByteOrderMark) {
  EXPECT_EQ(script_lines("s", "\xEF\xBB\xBF; remark\nEcho \xC3\xA4"), (Lines{{"s", 2, "Echo \xC3\xA4"}}));
}

TEST(ScriptLines, OfNothingAreNone) {
  EXPECT_TRUE(script_lines("s", "").empty());
  EXPECT_TRUE(script_lines("s", "\n\n").empty());
}

TEST(SourceLine, IsNamedByScriptNumberAndText) {
  EXPECT_EQ((SourceLine{"a.kov", 12, "Echo x"}.place()), "a.kov:12: Echo x");
}

TEST(ReadScript, GivesTheWholeFile) {
  const TemporaryFolder folder;
  const std::string text(200'000, 'x');
  write_text("s.kov", text);
  EXPECT_EQ(read_script("s.kov"), text);
}

TEST(ReadScript, NamesAFileThatCannotBeRead) {
  const TemporaryFolder folder;
  std::filesystem::create_directory("folder");
  for (const std::string name : {"missing.kov", "folder"}) {
    try {
      read_script(name);
      ADD_FAILURE() << name << " was read";
    } catch (const script_error& error) {
      EXPECT_EQ(std::string(error.what()).find("script " + name + " cannot be read: "), 0U) << error.what();
    }
  }
}

}  // namespace
}  // namespace kov
