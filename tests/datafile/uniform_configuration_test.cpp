#include "datafile/uniform_configuration.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "file_desk.h"
#include "support/recording_messages.h"

namespace kov {
namespace {

const std::string hint =
    "The filename\n   kovcfg.aa1\nis reserved as uniform default configuration.\n\n"
    "If this file exists in the current directory,\nconfiguration entries marked by \"u\"\n"
    "will be read automatically\nfrom it after after every input of another file\nas uniform default.\n\n";

TEST(UniformConfiguration, HasItsTexts) {
  const TemporaryFolder folder;
  EXPECT_EQ(uniform_hint(), hint);
  EXPECT_EQ(save_configuration_question(),
            hint + "Do you want to save current configuration as\nuniform default in   kovcfg.aa1?");
  EXPECT_EQ(delete_configuration_question(), hint +
                                                 "Do you want to delete this file, so that complete\n"
                                                 "configuration saved in individual files is used?");
  EXPECT_EQ(reset_configuration_question(), "Do you want to set all program parameters\nto default values?");
  EXPECT_EQ(uniform_file_report(), "File for uniform configuration\n(kovcfg.aa1) is not existent. " + hint);

  write_text("kovcfg.aa1", "");
  EXPECT_EQ(reset_configuration_question(),
            "Do you want to set all program parameters\nto default values contained in kovcfg.aa1?");
  EXPECT_EQ(uniform_file_report(), "File for uniform configuration\n(kovcfg.aa1) exists. " + hint);
}

TEST(UniformConfiguration, IsAFileAndNoFolder) {
  const TemporaryFolder folder;
  EXPECT_FALSE(uniform_file_exists());
  std::filesystem::create_directory("kovcfg.aa1");
  EXPECT_FALSE(uniform_file_exists());
  std::filesystem::remove("kovcfg.aa1");
  write_text("kovcfg.aa1", "");
  EXPECT_TRUE(uniform_file_exists());
}

TEST(UniformConfiguration, IsSavedWithoutAnyPoint) {
  FileDesk desk;
  fill_every_part(desk.document);
  save_uniform_configuration(desk.document, desk.scripted);
  const std::string text = text_of("kovcfg.aa1");
  EXPECT_EQ(text.find("\ne_l "), std::string::npos);
  EXPECT_NE(text.find("\r\ne_lpd 0 176 32\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\nSlq_ColCount 25 2 1000 1\r\n"), std::string::npos);
  EXPECT_TRUE(text.ends_with("\r\n;Lattice not saved\r\n"));
  EXPECT_EQ(desk.document.lmap.count(), 4U);
}

TEST(UniformConfiguration, CanBeDeleted) {
  const TemporaryFolder folder;
  RecordingMessages messages;
  write_text("kovcfg.aa1", "");
  EXPECT_TRUE(delete_uniform_configuration(messages));
  EXPECT_EQ(folder.names(), std::vector<std::string>{});
  EXPECT_TRUE(delete_uniform_configuration(messages));
  EXPECT_EQ(messages.texts(), std::vector<std::string>{});
}

TEST(UniformConfiguration, ThatCannotBeDeletedIsReportedByItsReason) {
  const std::string forbidden = "kovcfg.aa1 not removed, access forbidden.";
  struct Case {
    std::errc failure;
    std::string text;
  };
  const auto reason = [](std::errc failure) {
    return "Cannot remove kovcfg.aa1:\n" + std::make_error_code(failure).message();
  };
  // clang-format off
  const Case cases[] = {
      {std::errc::permission_denied,       forbidden},
      {std::errc::operation_not_permitted, forbidden},
      {std::errc::read_only_file_system,   forbidden},
      {std::errc::device_or_resource_busy, reason(std::errc::device_or_resource_busy)},
      {std::errc::io_error,                reason(std::errc::io_error)},
  };
  // clang-format on
  for (const Case& c : cases) EXPECT_EQ(removal_failure_text(std::make_error_code(c.failure)), c.text);
}

TEST(UniformConfiguration, ThatMustNotBeDeletedIsReported) {
  const TemporaryFolder folder;
  write_text("kovcfg.aa1", "");
  std::filesystem::permissions(".", std::filesystem::perms(0555));
  const pid_t child = ::fork();
  if (child == 0) {
    constexpr uid_t nobody = 65534;
    RecordingMessages messages;
    const bool ordinary = ::geteuid() != 0 || (::setgid(nobody) == 0 && ::setuid(nobody) == 0);
    const bool removed = delete_uniform_configuration(messages);
    const RecordedMessage expected{MessageKind::error, "kovcfg.aa1 not removed, access forbidden."};
    const bool reported = messages.shown == std::vector<RecordedMessage>{expected} && messages.beeps == 1;
    ::_exit(ordinary && !removed && reported ? 0 : 1);
  }
  int status = -1;
  ::waitpid(child, &status, 0);
  std::filesystem::permissions(".", std::filesystem::perms(0700));
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  EXPECT_TRUE(uniform_file_exists());
}

}  // namespace
}  // namespace kov
