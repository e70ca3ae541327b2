#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "batch/options.h"
#include "batch/printer.h"
#include "support/temporary_folder.h"

namespace kov {
namespace {

std::string manual_page() {
  return text_of(std::filesystem::path(KOV_SOURCE_DIR) / "docs" / "man" / "kovbatch.1");
}

/// The options that the help lists, as "-c" and "--command": what starts its lines with a minus sign.
std::vector<std::string> options_of_help() {
  std::vector<std::string> options;
  const std::string help = help_text();
  for (std::size_t begin = 0; begin < help.size();) {
    const std::size_t end = help.find('\n', begin);
    std::string_view line = std::string_view(help).substr(begin, end - begin);
    begin = end + 1;
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    while (line.starts_with('-')) {
      const std::size_t stop = std::min(line.find_first_of(", "), line.size());
      options.emplace_back(line.substr(0, stop));
      line.remove_prefix(line.substr(stop).starts_with(", ") ? stop + 2 : line.size());
    }
  }
  return options;
}

/// As the manual page's language writes an option: "-c" is "Fl c", "--command" is "Fl Fl command".
std::string in_manual(std::string_view option) {
  const bool word = option.starts_with("--");
  return (word ? "Fl Fl " : "Fl ") + std::string(option.substr(word ? 2 : 1));
}

TEST(ManualPage, DescribesEveryOptionOfTheHelp) {
  const std::string manual = manual_page();
  const std::vector<std::string> options = options_of_help();
  EXPECT_EQ(options.size(), 14U) << "six with a letter and a word, two with a word alone";
  for (const std::string& option : options) {
    const std::string text = in_manual(option);
    const bool described = manual.find("\n.It " + text + "\n") != std::string::npos ||
                           manual.find("\n.It " + text + " ") != std::string::npos ||
                           manual.find(" , " + text + "\n") != std::string::npos ||
                           manual.find(" , " + text + " ") != std::string::npos;
    EXPECT_TRUE(described) << option;
  }
}

TEST(ManualPage, DescribesEverythingThatCanBePrinted) {
  const std::string manual = manual_page();
  for (const std::string_view name : printer_names()) {
    EXPECT_NE(manual.find("\n.It Li " + std::string(name) + "\n"), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace kov
