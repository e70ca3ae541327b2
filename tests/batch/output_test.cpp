#include "batch/output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "support/temporary_folder.h"

namespace kov {
namespace {

TEST(DescriptorOutput, WritesEverythingInOrder) {
  const TemporaryFolder folder;
  const int descriptor = ::open("x", O_WRONLY | O_CREAT, 0600);
  std::string expected;
  {
    DescriptorOutput output(descriptor);
    for (int i = 0; i < 5000; ++i) {
      const std::string line = std::string(50, static_cast<char>('a' + i % 26)) + "\n";
      output.write(line);
      expected += line;
    }
    EXPECT_EQ(output.take_failure(), "");
    EXPECT_EQ(text_of("x"), expected) << "take_failure flushes";
    output.write("end");
    expected += "end";
  }
  ::close(descriptor);
  EXPECT_EQ(text_of("x"), expected) << "the destructor flushes";
}

TEST(DescriptorOutput, KeepsTheFirstFailureUntilItIsTaken) {
  const int full = ::open("/dev/full", O_WRONLY);
  ASSERT_GE(full, 0);
  DescriptorOutput output(full);
  output.write("a");
  output.flush();
  output.write("dropped");
  EXPECT_NE(output.take_failure(), "");
  EXPECT_EQ(output.take_failure(), "");
  ::close(full);
}

TEST(FileOutput, WritesOverTheOldFile) {
  const TemporaryFolder folder;
  write_text("x", "something longer");
  FileOutput output("x");
  output.write("new\n");
  EXPECT_EQ(output.take_failure(), "");
  EXPECT_EQ(text_of("x"), "new\n");
}

TEST(FileOutput, TellsWhyAFileCannotBeWritten) {
  const TemporaryFolder folder;
  std::filesystem::create_directory("folder");
  for (const char* path : {"folder", "no/such/folder/x", "/dev/full"}) {
    FileOutput output(path);
    output.write("text");
    EXPECT_NE(output.take_failure(), "") << path;
  }
}

}  // namespace
}  // namespace kov
