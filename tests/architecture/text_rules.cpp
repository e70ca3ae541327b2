#include "architecture/text_rules.h"

#include <algorithm>
#include <regex>

namespace kov::architecture {
namespace {

bool is_cpp(const SourceFile& file) { return file.is_header() || file.path.ends_with(".cpp"); }

/// A finding for every line in which the pattern occurs.
void find_pattern(const SourceFile& file, const std::vector<std::string>& lines, const std::regex& pattern,
                  const std::string& text, Findings& findings) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::smatch match;
    if (std::regex_search(lines[i], match, pattern)) findings.push_back(finding(file, i, text + match.str()));
  }
}

}  // namespace

Findings headers_without_guard(const SourceTree& tree) {
  Findings findings;
  for (const SourceFile& file : tree.files) {
    if (!file.is_header()) continue;
    const std::vector<std::string> code = code_only(file);
    const auto first = std::ranges::find_if(
        code, [](const std::string& line) { return line.find_first_not_of(" \t") != std::string::npos; });
    if (first == code.end() || *first != "#pragma once") {
      findings.push_back(finding(file, 0, "#pragma once must come first"));
    }
  }
  return findings;
}

Findings overlong_files(const SourceTree& tree) {
  Findings findings;
  for (const SourceFile& file : tree.files) {
    if (is_cpp(file) && file.lines.size() > longest_file) {
      findings.push_back(
          finding(file, file.lines.size() - 1, "more than " + std::to_string(longest_file) + " lines"));
    }
  }
  return findings;
}

Findings marks_of_unfinished_work(const SourceTree& tree) {
  // Put together from halves, so that the rule does not find itself.
  static const std::regex marks(
      "\\b(TO"
      "DO|FIX"
      "ME|X"
      "XX|HA"
      "CK)\\b");
  Findings findings;
  for (const SourceFile& file : tree.files)
    find_pattern(file, file.lines, marks, "unfinished work: ", findings);
  return findings;
}

Findings locale_dependent_numbers(const SourceTree& tree) {
  static const std::regex functions(
      R"(\b(v?[fsd]?n?w?printf|v?[fs]?w?scanf|ato(i|l|ll|f)|strto(d|f|ld|l|ll|ul|ull|imax|umax)|)"
      R"(sto(i|l|ll|ul|ull|f|d|ld)|to_wstring|w?[io]?stringstream|setprecision|[gp]et_money)\b)");
  static const std::regex text_of_number(R"(\bto_string\b)");
  Findings findings;
  for (const SourceFile& file : tree.files) {
    if (!is_cpp(file) || !file.is_under("src")) continue;
    const std::vector<std::string> code = code_only(file);
    find_pattern(file, code, functions, "depends on the locale: ", findings);
    if (!file.is_under("src/text"))
      find_pattern(file, code, text_of_number, "use the text layer instead of ", findings);
  }
  return findings;
}

Findings unlisted_decisions(const SourceTree& tree) {
  static const std::string folder = "docs/decisions";
  Findings findings;
  const SourceFile* index = tree.find(folder + "/README.md");
  for (const SourceFile& file : tree.files) {
    if (!file.is_under(folder) || &file == index) continue;
    const std::string link = "](" + file.path.substr(folder.size() + 1) + ")";
    const auto lists = [&](const std::string& line) { return line.find(link) != std::string::npos; };
    if (index == nullptr || std::ranges::none_of(index->lines, lists)) {
      findings.push_back(finding(file, 0, "not listed in " + folder + "/README.md"));
    }
  }
  return findings;
}

Findings dead_links(const SourceTree& tree, const std::filesystem::path& root) {
  static const std::regex link(R"(\]\(([^)#\s]+)(#[^)]*)?\))");
  Findings findings;
  for (const SourceFile& file : tree.files) {
    if (!file.path.ends_with(".md")) continue;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
      const std::string& line = file.lines[i];
      for (std::sregex_iterator match(line.begin(), line.end(), link), end; match != end; ++match) {
        const std::string target = (*match)[1].str();
        if (target.find("://") != std::string::npos) continue;
        if (!std::filesystem::exists((root / file.path).parent_path() / target)) {
          findings.push_back(finding(file, i, "dead link: " + target));
        }
      }
    }
  }
  return findings;
}

}  // namespace kov::architecture
