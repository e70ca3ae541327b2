#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "architecture/include_rules.h"
#include "architecture/source_tree.h"
#include "architecture/text_rules.h"

namespace kov::architecture {
namespace {

const std::filesystem::path root = KOV_SOURCE_DIR;

/// The repository, read once for all rules.
const SourceTree& repository() {
  static const SourceTree tree = read_tree(root);
  return tree;
}

std::string joined(const Findings& findings) {
  std::string text;
  for (const std::string& line : findings) text += line + "\n";
  return text;
}

TEST(Tree, IsReadWhole) {
  for (const char* path :
       {"src/text/tokens.h", "src/lattice/lk.h", "tests/text/tokens_test.cpp", "CMakeLists.txt", "README.md",
        "docs/architecture.md", "start", "test", ".ci/run"}) {
    EXPECT_NE(repository().find(path), nullptr) << path;
  }
}

TEST(Tree, IncludesFollowTheLayers) {
  Findings findings;
  const std::vector<Layer> layers = declared_layers(*repository().find("CMakeLists.txt"), findings);
  ASSERT_GE(layers.size(), 10u);
  EXPECT_EQ(joined(findings), "");
  EXPECT_EQ(joined(forbidden_includes(repository(), layers)), "");
}

TEST(Tree, SumsAndAlgaddDoNotKnowEachOther) {
  Findings findings;
  std::map<std::string, std::set<std::string>> may_include;
  for (const Layer& layer : declared_layers(*repository().find("CMakeLists.txt"), findings)) {
    may_include[layer.name] = layer.may_include;
  }
  EXPECT_FALSE(may_include.at("sums").contains("algadd"));
  EXPECT_FALSE(may_include.at("algadd").contains("sums"));
}

TEST(Tree, IncludesHaveNoCycle) { EXPECT_EQ(joined(include_cycles(repository())), ""); }
TEST(Tree, HeadersAreGuarded) { EXPECT_EQ(joined(headers_without_guard(repository())), ""); }
TEST(Tree, FilesAreShort) { EXPECT_EQ(joined(overlong_files(repository())), ""); }
TEST(Tree, NothingIsPutOff) { EXPECT_EQ(joined(marks_of_unfinished_work(repository())), ""); }
TEST(Tree, NumbersIgnoreTheLocale) { EXPECT_EQ(joined(locale_dependent_numbers(repository())), ""); }
TEST(Tree, DecisionsAreListed) { EXPECT_EQ(joined(unlisted_decisions(repository())), ""); }
TEST(Tree, LinksLeadSomewhere) { EXPECT_EQ(joined(dead_links(repository(), root)), ""); }

}  // namespace
}  // namespace kov::architecture
