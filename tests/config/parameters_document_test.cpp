#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "config/definition_table.h"
#include "text/integers.h"

namespace kov {
namespace {

/// The rows of the document's table: every line that begins with a keyword.
std::vector<std::string> documented_rows() {
  std::ifstream document(KOV_SOURCE_DIR "/docs/parameters.md");
  std::vector<std::string> rows;
  for (std::string line; std::getline(document, line);) {
    if (line.starts_with("| `")) rows.push_back(line);
  }
  return rows;
}

std::string documented_range(const MMI& parameter) {
  if (parameter.max != highest_int) return int_text(parameter.min) + " to " + int_text(parameter.max);
  return parameter.min == lowest_int ? "any" : "from " + int_text(parameter.min);
}

std::string documented(const Kpair& entry) {
  const auto& [keyword, parameter] = entry;
  return "| `" + keyword + "` | " + int_text(parameter.i) + " | " + documented_range(parameter) + " | " +
         (parameter.ucfg ? "u" : "") + " | " + parameter.description + " |";
}

TEST(ParametersDocument, DescribesEveryParameterAsItIsDefined) {
  std::vector<std::string> expected;
  for (const Kpair& entry : definition_table({})) expected.push_back(documented(entry));
  EXPECT_EQ(documented_rows(), expected);
}

}  // namespace
}  // namespace kov
