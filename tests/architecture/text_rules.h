#pragma once

#include "architecture/source_tree.h"

namespace kov::architecture {

/// A file beyond this many lines holds more than one concept.
inline constexpr std::size_t longest_file = 400;

/// Headers of C++ without `#pragma once` in their first line of code.
Findings headers_without_guard(const SourceTree& tree);

/// C++ files of more than longest_file lines.
Findings overlong_files(const SourceTree& tree);

/// Marks that put work off.
Findings marks_of_unfinished_work(const SourceTree& tree);

/// Functions in src/ that read or write numbers by the locale, or leave their failure unseen: the
/// printf and scanf families, ato..., strto..., sto..., string streams, stream manipulators, and
/// to_string outside src/text, which has the one text of integers.
Findings locale_dependent_numbers(const SourceTree& tree);

/// Pages of docs/decisions that its README.md does not list.
Findings unlisted_decisions(const SourceTree& tree);

/// Relative links in documents that lead to no file under root.
Findings dead_links(const SourceTree& tree, const std::filesystem::path& root);

}  // namespace kov::architecture
