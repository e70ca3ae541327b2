#include "datafile/line_source.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <vector>

#include "datafile/file_error.h"
#include "file_desk.h"

namespace kov {
namespace {

std::vector<std::string> lines_of(std::string_view text) {
  const TemporaryFolder folder;
  write_text("lines", text);
  LineSource source("lines");
  std::vector<std::string> lines;
  for (std::string_view line; source.next(line);) lines.emplace_back(line);
  return lines;
}

TEST(LineSource, EndsLinesAtLfAndDropsOneCrBeforeIt) {
  using namespace std::string_literals;
  struct Row {
    std::string text;
    std::vector<std::string> lines;
  };
  const std::vector<Row> rows = {
      {"", {}},
      {"\n", {""}},
      {"\r\n\r\n", {"", ""}},
      {"a\r\nb\nc", {"a", "b", "c"}},
      {"a\r\nb\r\n", {"a", "b"}},
      {"a\rb\r\r\n", {"a\rb\r"}},
      {"a\n\nb\r", {"a", "", "b"}},
      {"\0 \0\n\0"s, {"\0 \0"s, "\0"s}},
  };
  for (const Row& row : rows) EXPECT_EQ(lines_of(row.text), row.lines) << row.text;
}

TEST(LineSource, GivesLinesOfAnyLengthAcrossItsBlocks) {
  // Lengths around the size of a block, so that line ends fall on both sides of its border.
  constexpr std::size_t block = std::size_t{1} << 20;
  std::vector<std::string> lines;
  std::string text;
  char filling = 'a';
  for (const std::size_t length : {block - 2, block - 1, block, block + 1, std::size_t{3}, 5 * block}) {
    lines.emplace_back(length, filling++);
    text += lines.back() + "\r\n";
  }
  EXPECT_EQ(lines_of(text), lines);
}

TEST(LineSource, NamesTheFileAndTheReasonWhenItCannotBeOpened) {
  const TemporaryFolder folder;
  const auto text_of_failure = [](const std::filesystem::path& path) -> std::string {
    try {
      const LineSource source(path);
    } catch (const file_error& error) {
      return error.what();
    }
    return "opened";
  };
  EXPECT_EQ(text_of_failure("none.aa1"), "Cannot open none.aa1:\n" + std::generic_category().message(ENOENT));
  EXPECT_EQ(text_of_failure(folder.path()),
            "Cannot open " + folder.path().string() + ":\n" + std::generic_category().message(EISDIR));
}

TEST(LineSource, ReportsAFileThatCannotBeReadOn) {
  // The memory of a process can be opened as a file, but nothing can be read at its address 0.
  LineSource source("/proc/self/mem");
  std::string_view line;
  EXPECT_THROW(source.next(line), file_error);
}

}  // namespace
}  // namespace kov
