// What the program has, the help has: commands, shortcuts, parameters, options.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "batch/options.h"
#include "config/definition_table.h"
#include "help/help_pages.h"
#include "text/integers.h"
#include "workbench/command.h"

namespace kov {
namespace {

const std::map<std::string_view, std::string> page_of_menu = {{"File", "file_menu.html"},
                                                              {"Util", "util_menu.html"},
                                                              {"Cmd", "cmd_menu.html"},
                                                              {"Mod", "mod_menu.html"},
                                                              {"Alg", "alg_menu.html"},
                                                              {"Help", "help_menu.html"},
                                                              {"Bar", "menu_bar.html"},
                                                              {"Algadd", "algadd_table_menu.html"},
                                                              {"Sums1", "modify_range_menu.html"},
                                                              {"Graph1", "graph1.html"},
                                                              {"Graph2", "graph2.html"}};

const std::string& text_of_page(const std::string& file) {
  static const std::string none;
  const auto page = help_pages().find(file);
  return page == help_pages().end() ? none : page->second.text;
}

std::string source_of_page(const std::string& file) {
  const auto page = help_pages().find(file);
  return page == help_pages().end() ? "" : page->second.source;
}

std::string html_text(const std::string& text) {
  std::string escaped;
  for (const char c : text)
    escaped += c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '&' ? "&amp;" : std::string(1, c);
  return escaped;
}

/// The bold words of a page: that is how it names a command.
bool names_command(const std::string& file, const std::string& caption) {
  static const std::regex bold("<b>([^<]*)</b>");
  const std::string source = source_of_page(file);
  for (std::sregex_iterator match(source.begin(), source.end(), bold), end; match != end; ++match) {
    if (item_name(with_characters((*match)[1].str())) == caption) return true;
  }
  return false;
}

bool has_keyword(const std::string& name, const std::string& file) {
  const auto& keywords = help_project().keywords;
  return std::any_of(keywords.begin(), keywords.end(), [&](const HelpPlace& keyword) {
    const bool named = keyword.name == name || keyword.name.starts_with(name + " (");
    return named && keyword.target.substr(0, keyword.target.find('#')) == file;
  });
}

TEST(HelpCommands, AreNamedOnThePageOfTheirMenu) {
  ASSERT_GT(commands().size(), 70u);
  for (const Command& command : commands()) {
    const auto page = page_of_menu.find(command.menu);
    ASSERT_NE(page, page_of_menu.end()) << command.menu;
    EXPECT_TRUE(names_command(page->second, item_name(command.caption)))
        << command.menu << "/" << command.caption;
  }
}

TEST(HelpCommands, AreInTheIndex) {
  for (const Command& command : commands()) {
    EXPECT_TRUE(has_keyword(item_name(command.caption), page_of_menu.at(command.menu)))
        << command.menu << "/" << command.caption;
  }
}

/// The items that only a window can have, so that they are no rows of the table.
TEST(HelpCommands, OfTheWindowAloneAreThereToo) {
  for (const auto& [item, file] :
       {std::pair{"Contents", "help_menu.html"}, std::pair{"Index", "help_menu.html"},
        std::pair{"Search", "help_menu.html"}, std::pair{"US", "menu_bar.html"},
        std::pair{"Open recent", "file_menu.html"}, std::pair{"Start Algus1", "own_algorithm.html"},
        std::pair{"Start Algus2", "own_algorithm.html"}}) {
    EXPECT_TRUE(names_command(file, item)) << item;
    EXPECT_TRUE(has_keyword(item, file)) << item;
  }
  EXPECT_TRUE(has_keyword("F1", "keys.html"));
}

TEST(HelpCommands, ShortcutsAreOnTheirMenusPageAmongTheKeysAndInTheIndex) {
  int shortcuts = 0;
  for (const Command& command : commands()) {
    if (command.shortcut.empty()) continue;
    const std::string key(command.shortcut);
    EXPECT_NE(text_of_page(page_of_menu.at(command.menu)).find(key), std::string::npos) << key;
    EXPECT_NE(source_of_page("keys.html").find("<b>" + key + "</b>"), std::string::npos) << key;
    const std::string names = std::string(command.menu) + ", " + item_name(command.caption);
    EXPECT_NE(text_of_page("keys.html").find(names), std::string::npos) << names;
    EXPECT_TRUE(has_keyword(key, "keys.html")) << key;
    ++shortcuts;
  }
  EXPECT_GE(shortcuts, 9);
}

TEST(HelpCommands, GridsAreInTheIndex) {
  for (const char* grid :
       {"Slq", "Sldim", "Sllist", "SlAlgadd", "Slds1", "Slsums1", "Slsums2", "Slg2a", "Slconfig"}) {
    const auto& keywords = help_project().keywords;
    EXPECT_TRUE(std::any_of(keywords.begin(), keywords.end(), [&](const HelpPlace& keyword) {
      return keyword.name == grid;
    })) << grid;
    EXPECT_NE(text_of_page("kovbatch.html").find(grid), std::string::npos) << grid;
  }
}

TEST(HelpParameters, AreOnTheirPageWithDefaultRangeAndDescription) {
  const std::string source = source_of_page("parameters.html");
  for (const auto& [keyword, parameter] : definition_table({})) {
    EXPECT_NE(source.find("<code>" + keyword + "</code></td><td>" + int_text(parameter.i) + "</td>"),
              std::string::npos)
        << keyword;
    EXPECT_NE(source.find((parameter.ucfg ? "<td>u</td><td>" : "<td></td><td>") +
                          html_text(parameter.description) + "</td>"),
              std::string::npos)
        << keyword;
    EXPECT_TRUE(has_keyword(keyword, "parameters.html")) << keyword;
  }
  EXPECT_NE(source.find("Graph2a_ny</code></td><td>0</td><td>-99 to 99</td>"), std::string::npos);
  EXPECT_NE(source.find("Slq_DefaultColWidth</code></td><td>86</td><td>from 1</td>"), std::string::npos);
  EXPECT_NE(source.find("Sums2_n_first</code></td><td>0</td><td>any</td>"), std::string::npos);
}

/// A keyword on a page that is no parameter any more, or misspelled, helps nobody.
TEST(HelpParameters, NamedOnOtherPagesExist) {
  static const std::regex keyword(
      "<code>([A-Z][A-Za-z0-9]*_[A-Za-z0-9_]*[A-Za-z0-9]|MaxAllowed[A-Za-z]*)</code>");
  std::set<std::string> defined;
  for (const auto& [name, parameter] : definition_table({})) defined.insert(name);
  int named = 0;
  for (const auto& [file, page] : help_pages()) {
    for (std::sregex_iterator match(page.source.begin(), page.source.end(), keyword), end; match != end;
         ++match) {
      const std::string name = (*match)[1].str();
      if (name.starts_with("CB_")) continue;
      EXPECT_TRUE(defined.contains(name)) << file << ": " << name;
      ++named;
    }
  }
  EXPECT_GT(named, 100);
}

TEST(HelpKovbatch, HasEveryOption) {
  static const std::regex option("(--?[a-zA-Z][a-z-]*)");
  const std::string help = help_text();
  for (std::sregex_iterator match(help.begin(), help.end(), option), end; match != end; ++match) {
    const std::string name = (*match)[1].str();
    EXPECT_NE(text_of_page("kovbatch.html").find(name), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace kov
