#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

namespace kov {

/// One page of the help.
struct HelpPage {
  std::string source;
  /// The names of its anchors.
  std::set<std::string> anchors;
  /// What its links lead to, as written.
  std::vector<std::string> links;
  /// What a person reads: no tags, entities as characters, runs of blanks as one blank.
  std::string text;
};

/// The pages as they go into the help file, the generated one included, by the names of their files.
const std::map<std::string, HelpPage>& help_pages();

/// A place in the help that the project file names: a section of the contents, or a word of the index.
struct HelpPlace {
  std::string name;
  std::string target;
};

/// What the project file lists.
struct HelpProject {
  std::vector<HelpPlace> sections;
  std::vector<HelpPlace> keywords;
  std::set<std::string> files;
};

const HelpProject& help_project();

/// Entities as the characters that they stand for.
std::string with_characters(std::string text);

/// Runs of blanks as one blank, none at the ends.
std::string with_single_blanks(const std::string& text);

}  // namespace kov
