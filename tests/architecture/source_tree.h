#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kov::architecture {

/// A text file of the repository, taken apart into lines.
struct SourceFile {
  /// From the root of the tree on, with "/" between folders: "src/lattice/lk.h".
  std::string path;
  std::vector<std::string> lines;

  bool is_header() const { return path.ends_with(".h"); }
  bool is_under(const std::string& folder) const { return path.starts_with(folder + "/"); }
};

/// The repository as the rules see it. Built from the disk for the real tree, and by hand for the
/// trees on which the rules themselves are tested.
struct SourceTree {
  std::vector<SourceFile> files;

  /// Null when there is no such file.
  const SourceFile* find(const std::string& path) const;
};

/// What a rule found, a line each: "path:line: what is wrong".
using Findings = std::vector<std::string>;

/// A finding at a line (counted from 0 here, from 1 in the text).
std::string finding(const SourceFile& file, std::size_t line, const std::string& text);

/// Lines as an editor counts them; a line end is LF or CR LF.
std::vector<std::string> split_lines(const std::string& text);

/// Every C++ source, script, CMake file and document of the repository; the build folder and hidden
/// folders other than .ci are left out.
SourceTree read_tree(const std::filesystem::path& root);

/// The lines of C++ with comments and the contents of string and character literals blanked out;
/// columns stay.
std::vector<std::string> code_only(const SourceFile& file);

}  // namespace kov::architecture
