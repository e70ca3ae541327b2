#include "help/help_pages.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kov {
namespace {

/// The file and the anchor that a link from a page names.
std::pair<std::string, std::string> parts_of(const std::string& link, const std::string& page) {
  const std::size_t hash = link.find('#');
  const std::string file = link.substr(0, hash);
  return {file.empty() ? page : file, hash == std::string::npos ? "" : link.substr(hash + 1)};
}

void expect_resolves(const std::string& link, const std::string& from) {
  const auto [file, anchor] = parts_of(link, from);
  if (file == "style.css") return;
  const auto page = help_pages().find(file);
  ASSERT_NE(page, help_pages().end()) << from << ": " << link;
  if (!anchor.empty()) {
    EXPECT_TRUE(page->second.anchors.contains(anchor)) << from << ": " << link;
  }
}

std::string between(const std::string& text, const std::string& begin, const std::string& end) {
  const std::size_t from = text.find(begin);
  if (from == std::string::npos) return {};
  return text.substr(from + begin.size(), text.find(end, from) - from - begin.size());
}

TEST(HelpPages, AreThere) {
  for (const char* topic : {"overview",
                            "lattices",
                            "list",
                            "comment",
                            "algadd",
                            "sums1",
                            "sums2",
                            "graph1",
                            "graph2",
                            "config",
                            "file_menu",
                            "util_menu",
                            "cmd_menu",
                            "mod_menu",
                            "alg_menu",
                            "help_menu",
                            "menu_bar",
                            "algadd_table_menu",
                            "modify_range_menu",
                            "data_file",
                            "parameters",
                            "keys",
                            "kovbatch",
                            "own_algorithm"}) {
    EXPECT_TRUE(help_pages().contains(std::string(topic) + ".html")) << topic;
  }
}

TEST(HelpPages, AndNothingElseAreListedInTheProject) {
  std::set<std::string> sources = {"parameters.html"};
  for (const auto& entry : std::filesystem::directory_iterator(KOV_SOURCE_DIR "/docs/help")) {
    const std::string extension = entry.path().extension().string();
    if (extension == ".html" || extension == ".css") sources.insert(entry.path().filename().string());
  }
  EXPECT_EQ(help_project().files, sources);
}

TEST(HelpPages, HaveATitleThatIsTheirHeading) {
  std::set<std::string> titles;
  for (const auto& [name, page] : help_pages()) {
    const std::string title = between(page.source, "<title>", "</title>");
    EXPECT_NE(title, "") << name;
    EXPECT_EQ(between(page.source, "<h1>", "</h1>"), title) << name;
    EXPECT_TRUE(titles.insert(title).second) << name << ": " << title << " is also that of another page";
    EXPECT_NE(page.source.find("href=\"style.css\""), std::string::npos) << name;
  }
}

TEST(HelpPages, LinksResolve) {
  int links = 0;
  for (const auto& [name, page] : help_pages()) {
    for (const std::string& link : page.links) {
      SCOPED_TRACE(name);
      expect_resolves(link, name);
      ++links;
    }
  }
  EXPECT_GT(links, 100);
}

TEST(HelpPages, SectionsAndKeywordsResolve) {
  ASSERT_GT(help_project().sections.size(), 50u);
  ASSERT_GT(help_project().keywords.size(), 150u);
  for (const HelpPlace& section : help_project().sections) expect_resolves(section.target, section.name);
  for (const HelpPlace& keyword : help_project().keywords) expect_resolves(keyword.target, keyword.name);
}

TEST(HelpPages, AreInTheContents) {
  std::set<std::string> reached;
  for (const HelpPlace& section : help_project().sections) reached.insert(section.target);
  for (const auto& [name, page] : help_pages()) EXPECT_TRUE(reached.contains(name)) << name;
}

TEST(HelpPages, HeadingsAreInTheContents) {
  std::set<std::string> reached;
  for (const HelpPlace& section : help_project().sections) reached.insert(section.target);
  for (const auto& [name, page] : help_pages()) {
    if (name == "parameters.html") continue;
    for (const std::string& anchor : page.anchors) EXPECT_TRUE(reached.contains(name + "#" + anchor)) << name;
  }
}

TEST(HelpPages, KeywordsAreUnique) {
  std::set<std::string> names;
  for (const HelpPlace& keyword : help_project().keywords) {
    EXPECT_TRUE(names.insert(keyword.name).second) << keyword.name;
  }
}

}  // namespace
}  // namespace kov
