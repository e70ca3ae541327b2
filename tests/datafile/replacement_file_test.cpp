#include "datafile/replacement_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <string>
#include <vector>

#include "datafile/file_error.h"
#include "file_desk.h"

namespace kov {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

std::string reason(std::errc error) { return std::make_error_code(error).message(); }

void replace(const fs::path& path, std::string_view text) {
  ReplacementFile file(path);
  file.write(text);
  file.commit();
}

/// The text of the error that replacing the file ends in, or "replaced".
std::string failure_of_replacing(const fs::path& path, std::string_view text = "new") {
  try {
    replace(path, text);
  } catch (const file_error& error) {
    return error.what();
  }
  return "replaced";
}

mode_t mode_of(const fs::path& path) {
  struct stat facts {};
  ::stat(path.c_str(), &facts);
  return facts.st_mode & 07777;
}

/// Runs a check in a child process without the rights of the superuser; true when the check was true.
bool true_for_ordinary_user(const std::function<bool()>& check) {
  constexpr uid_t nobody = 65534;
  const pid_t child = ::fork();
  if (child == 0) {
    const bool ordinary = ::geteuid() != 0 || (::setgid(nobody) == 0 && ::setuid(nobody) == 0);
    ::_exit(ordinary && check() ? 0 : 1);
  }
  int status = -1;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(ReplacementFile, TakesTheOldFilesPlaceOnCommit) {
  const TemporaryFolder folder;
  write_text("a.aa1", "old");
  ReplacementFile file("a.aa1");
  file.write("new ");
  file.write("text");
  EXPECT_EQ(text_of("a.aa1"), "old");
  file.commit();
  EXPECT_EQ(text_of("a.aa1"), "new text");
  EXPECT_EQ(folder.names(), Names{"a.aa1"});
}

TEST(ReplacementFile, WithoutCommitLeavesTheOldFileAndNoTrace) {
  const TemporaryFolder folder;
  write_text("a.aa1", "old");
  { ReplacementFile("a.aa1").write("new"); }
  { ReplacementFile("b.aa1").write("new"); }
  EXPECT_EQ(text_of("a.aa1"), "old");
  EXPECT_EQ(folder.names(), Names{"a.aa1"});
}

TEST(ReplacementFile, KeepsTheOldFilesPermissions) {
  const TemporaryFolder folder;
  const mode_t mask = ::umask(027);
  write_text("old", "");
  ::chmod("old", 0606);
  replace("old", "x");
  replace("fresh", "x");
  ::umask(mask);
  EXPECT_EQ(mode_of("old"), 0606U);
  EXPECT_EQ(mode_of("fresh"), 0640U);
}

TEST(ReplacementFile, FollowsSymbolicLinks) {
  const TemporaryFolder folder;
  fs::create_directory("there");
  write_text("there/file", "old");
  fs::create_symlink("file", "there/second");
  fs::create_symlink("there/second", "first");
  fs::create_symlink("there/fresh", "dangling");
  replace("first", "new");
  replace("dangling", "made");
  EXPECT_TRUE(fs::is_symlink("first"));
  EXPECT_TRUE(fs::is_symlink("there/second"));
  EXPECT_FALSE(fs::is_symlink("there/file"));
  EXPECT_EQ(text_of("there/file"), "new");
  EXPECT_EQ(text_of("there/fresh"), "made");
}

TEST(ReplacementFile, RefusesWhatIsNoOrdinaryFile) {
  const TemporaryFolder folder;
  fs::create_directory("folder");
  fs::create_symlink("round", "about");
  fs::create_symlink("about", "round");
  EXPECT_EQ(failure_of_replacing("folder"), "Cannot save folder:\n" + reason(std::errc::is_a_directory));
  EXPECT_EQ(failure_of_replacing("/dev/null"), "Cannot save /dev/null:\nNot an ordinary file");
  EXPECT_TRUE(failure_of_replacing("round").ends_with(reason(std::errc::too_many_symbolic_link_levels)));
  EXPECT_EQ(failure_of_replacing("none/file"), "Cannot save none/file, no new file in folder none:\n" +
                                                   reason(std::errc::no_such_file_or_directory));
}

TEST(ReplacementFile, TakesANameAsLongAsNamesCanBe) {
  const TemporaryFolder folder;
  const std::string name(255, 'n');
  replace(name, "x");
  EXPECT_EQ(folder.names(), Names{name});
}

TEST(ReplacementFile, ReportsAWritableFileInAFolderThatIsNot) {
  const TemporaryFolder folder;
  write_text("a.aa1", "old");
  ::chmod("a.aa1", 0666);
  ::chmod(".", 0555);
  EXPECT_TRUE(true_for_ordinary_user([] {
    return failure_of_replacing("a.aa1") ==
           "Cannot save a.aa1, no new file in folder .:\n" + reason(std::errc::permission_denied);
  }));
  ::chmod(".", 0700);
  EXPECT_EQ(text_of("a.aa1"), "old");
}

TEST(ReplacementFile, RefusesAWriteProtectedFileInAWritableFolder) {
  const TemporaryFolder folder;
  write_text("a.aa1", "old");
  ::chmod("a.aa1", 0444);
  ::chmod(".", 0777);
  EXPECT_TRUE(true_for_ordinary_user([] {
    return failure_of_replacing("a.aa1") == "Cannot save a.aa1:\n" + reason(std::errc::permission_denied);
  }));
  EXPECT_EQ(text_of("a.aa1"), "old");
}

TEST(ReplacementFile, ThatFindsNoRoomLeavesTheOldFileAndNoTrace) {
  const TemporaryFolder folder;
  write_text("a.aa1", "old");
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  const rlimit small{4096, before.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &small);
  const std::string failure = failure_of_replacing("a.aa1", std::string(10000, 'x'));
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(failure, "Cannot save a.aa1:\n" + reason(std::errc::file_too_large));
  EXPECT_EQ(text_of("a.aa1"), "old");
  EXPECT_EQ(folder.names(), Names{"a.aa1"});
}

TEST(ReplacementFile, RemovesWhatAKilledProgramLeftButNothingInUse) {
  const TemporaryFolder folder;
  const pid_t child = ::fork();
  if (child == 0) {
    ReplacementFile file("a.aa1");
    file.write("half");
    ::raise(SIGKILL);
  }
  ::waitpid(child, nullptr, 0);
  const Names left = folder.names();
  ASSERT_EQ(left.size(), 1U);

  ReplacementFile in_use("a.aa1");
  in_use.write("first");
  EXPECT_EQ(folder.names().size(), 1U);
  EXPECT_NE(folder.names(), left);
  replace("b.aa1", "another file's save");
  replace("a.aa1", "second");
  EXPECT_EQ(text_of("a.aa1"), "second");
  in_use.commit();
  EXPECT_EQ(text_of("a.aa1"), "first");
  EXPECT_EQ(folder.names(), (Names{"a.aa1", "b.aa1"}));
}

}  // namespace
}  // namespace kov
