#include "architecture/source_tree.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <string_view>

namespace kov::architecture {
namespace {

namespace fs = std::filesystem;

/// Folders that hold nothing written by hand: builds, and the hidden ones but the checking machine's.
bool is_passed_over(const fs::path& folder) {
  const std::string name = folder.filename().string();
  return name == "build" || (name.starts_with('.') && name != ".ci");
}

bool is_text_of_interest(const fs::path& path) {
  static constexpr std::array<std::string_view, 7> extensions = {".h",  ".cpp",   ".md", ".txt",
                                                                 ".sh", ".cmake", ""};
  return std::ranges::find(extensions, path.extension().string()) != extensions.end();
}

SourceFile read_file(const fs::path& root, const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  std::ostringstream text;
  text << stream.rdbuf();
  return {path.lexically_relative(root).generic_string(), split_lines(text.str())};
}

/// Walks over the characters of a file and blanks what is no code.
class Blanker {
 public:
  std::string operator()(std::string line) {
    for (std::size_t i = 0; i < line.size(); ++i) i = blank_at(line, i);
    if (state_ == State::text) state_ = State::code;
    return line;
  }

 private:
  enum class State { code, comment, text, raw_text };

  std::size_t blank_at(std::string& line, std::size_t i) {
    switch (state_) {
      case State::code:
        return in_code(line, i);
      case State::comment:
        return leave_behind(line, i, "*/");
      case State::raw_text:
        return leave_behind(line, i, raw_end_);
      case State::text:
        return in_text(line, i);
    }
    return i;
  }

  std::size_t in_code(std::string& line, std::size_t i) {
    const std::string_view rest = std::string_view(line).substr(i);
    if (rest.starts_with("//")) {
      line.erase(i);
    } else if (rest.starts_with("/*")) {
      state_ = State::comment;
      return i + 1;
    } else if (rest.starts_with("R\"")) {
      raw_end_ = ")";
      raw_end_.append(rest.substr(2, rest.find('(') - 2)).append("\"");
      state_ = State::raw_text;
      return i + 1;
    } else if (rest.front() == '"' || (rest.front() == '\'' && !follows_digit(line, i))) {
      quote_ = rest.front();
      state_ = State::text;
    }
    return i;
  }

  /// A digit separator, as in 1'000, opens no character literal.
  static bool follows_digit(const std::string& line, std::size_t i) {
    return i > 0 && line[i - 1] >= '0' && line[i - 1] <= '9';
  }

  std::size_t in_text(std::string& line, std::size_t i) {
    if (line[i] == quote_) {
      state_ = State::code;
      return i;
    }
    const bool escape = line[i] == '\\' && i + 1 < line.size();
    line[i] = ' ';
    if (escape) line[i + 1] = ' ';
    return escape ? i + 1 : i;
  }

  std::size_t leave_behind(std::string& line, std::size_t i, const std::string& end) {
    if (std::string_view(line).substr(i).starts_with(end)) {
      state_ = State::code;
      std::fill_n(line.begin() + static_cast<std::ptrdiff_t>(i), end.size(), ' ');
      return i + end.size() - 1;
    }
    line[i] = ' ';
    return i;
  }

  State state_ = State::code;
  char quote_ = '"';
  std::string raw_end_;
};

}  // namespace

const SourceFile* SourceTree::find(const std::string& path) const {
  const auto place = std::ranges::find(files, path, &SourceFile::path);
  return place == files.end() ? nullptr : &*place;
}

std::string finding(const SourceFile& file, std::size_t line, const std::string& text) {
  return file.path + ":" + std::to_string(line + 1) + ": " + text;
}

std::vector<std::string> split_lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

SourceTree read_tree(const fs::path& root) {
  SourceTree tree;
  for (auto entry = fs::recursive_directory_iterator(root); entry != fs::end(entry); ++entry) {
    if (entry->is_directory()) {
      if (is_passed_over(entry->path())) entry.disable_recursion_pending();
    } else if (entry->is_regular_file() && is_text_of_interest(entry->path())) {
      tree.files.push_back(read_file(root, entry->path()));
    }
  }
  std::ranges::sort(tree.files, {}, &SourceFile::path);
  return tree;
}

std::vector<std::string> code_only(const SourceFile& file) {
  Blanker blanker;
  std::vector<std::string> code;
  for (const std::string& line : file.lines) code.push_back(blanker(line));
  return code;
}

}  // namespace kov::architecture
