#include "help/help_pages.h"

#include <filesystem>
#include <regex>
#include <string_view>
#include <utility>

#include "support/temporary_folder.h"
#include "text/tokens.h"

namespace kov {
namespace {

const std::filesystem::path folder = KOV_HELP_PAGES;

/// The first group of every match.
std::vector<std::string> all_matches(const std::string& text, const std::regex& pattern) {
  std::vector<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end; ++match) {
    found.push_back((*match)[1].str());
  }
  return found;
}

std::string replaced(std::string text, std::string_view what, std::string_view by) {
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
    text.replace(at, what.size(), by);
  }
  return text;
}

std::string read_text(const std::string& source) {
  static const std::regex tag("<[^>]*>");
  return with_single_blanks(with_characters(std::regex_replace(source, tag, "")));
}

HelpPage page_of(const std::filesystem::path& file) {
  static const std::regex anchor("<a name=\"([^\"]*)\"");
  static const std::regex link("href=\"([^\"]*)\"");
  HelpPage page;
  page.source = text_of(file);
  for (const std::string& name : all_matches(page.source, anchor)) page.anchors.insert(name);
  page.links = all_matches(page.source, link);
  page.text = read_text(page.source);
  return page;
}

std::vector<HelpPlace> places(const std::string& project, const std::string& element,
                              const std::string& attribute) {
  const std::regex form("<" + element + " " + attribute + "=\"([^\"]*)\" ref=\"([^\"]*)\"");
  std::vector<HelpPlace> found;
  for (std::sregex_iterator match(project.begin(), project.end(), form), end; match != end; ++match) {
    found.push_back({with_characters((*match)[1].str()), (*match)[2].str()});
  }
  return found;
}

}  // namespace

std::string with_characters(std::string text) {
  text = replaced(std::move(text), "&lt;", "<");
  text = replaced(std::move(text), "&gt;", ">");
  text = replaced(std::move(text), "&quot;", "\"");
  return replaced(std::move(text), "&amp;", "&");
}

std::string with_single_blanks(const std::string& text) {
  std::string result;
  const std::string line = replaced(replaced(text, "\n", " "), "\r", " ");
  Tokens tokens(line);
  for (std::string_view token = tokens.next(); !token.empty(); token = tokens.next()) {
    if (!result.empty()) result += ' ';
    result += token;
  }
  return result;
}

const std::map<std::string, HelpPage>& help_pages() {
  static const auto pages = [] {
    std::map<std::string, HelpPage> all;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      if (entry.path().extension() == ".html")
        all.emplace(entry.path().filename().string(), page_of(entry.path()));
    }
    return all;
  }();
  return pages;
}

const HelpProject& help_project() {
  static const auto project = [] {
    static const std::regex file("<file>([^<]*)</file>");
    const std::string source = text_of(folder / "kov.qhp");
    HelpProject read;
    read.sections = places(source, "section", "title");
    read.keywords = places(source, "keyword", "name");
    for (const std::string& name : all_matches(source, file)) read.files.insert(name);
    return read;
  }();
  return project;
}

}  // namespace kov
