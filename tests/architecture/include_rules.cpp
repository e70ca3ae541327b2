#include "architecture/include_rules.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <regex>
#include <string_view>

namespace kov::architecture {
namespace {

struct Include {
  std::size_t line = 0;
  bool quoted = false;
  std::string name;
};

std::vector<Include> includes_of(const SourceFile& file) {
  static const std::regex form(R"re(^\s*#\s*include\s*(["<])([^">]+)[">].*)re");
  std::vector<Include> includes;
  for (std::size_t i = 0; i < file.lines.size(); ++i) {
    std::smatch match;
    if (std::regex_match(file.lines[i], match, form)) {
      includes.push_back({i, match[1].str() == "\"", match[2].str()});
    }
  }
  return includes;
}

/// The deepest declared layer whose folder holds the file.
const Layer* layer_of(const std::string& path, const std::vector<Layer>& layers) {
  const Layer* deepest = nullptr;
  for (const Layer& layer : layers) {
    if (!path.starts_with("src/" + layer.name + "/")) continue;
    if (deepest == nullptr || layer.name.size() > deepest->name.size()) deepest = &layer;
  }
  return deepest;
}

bool is_qt(const std::string& header) {
  return header.starts_with("Qt") ||
         (header.size() > 1 && header[0] == 'Q' && header[1] >= 'A' && header[1] <= 'Z');
}

bool may_use_qt(const Layer& layer) {
  return layer.name == "widgets" || layer.name == "app" || layer.name.ends_with("/qt");
}

/// The standard library's headers have neither a folder nor an extension. What the processor's vectors can do
/// comes with every compiler for it, how the allocator is set with the C library that it belongs to.
bool is_standard_or_posix(const std::string& header) {
  static constexpr std::array<std::string_view, 5> others = {"fcntl.h", "immintrin.h", "malloc.h", "signal.h",
                                                             "unistd.h"};
  return header.starts_with("sys/") || std::ranges::find(others, header) != others.end() ||
         header.find_first_of("./") == std::string::npos;
}

std::optional<std::string> fault_of_library_include(const Include& include, const Layer& layer) {
  if (is_qt(include.name)) {
    if (may_use_qt(layer)) return std::nullopt;
    return "Qt (" + include.name + ") outside widgets, app and the qt rooms";
  }
  if (is_standard_or_posix(include.name)) return std::nullopt;
  return include.name + " is of neither the standard library nor POSIX";
}

std::optional<std::string> fault_of_own_include(const Include& include, const Layer& layer,
                                                const SourceTree& tree, const std::vector<Layer>& layers) {
  const std::string target = "src/" + include.name;
  if (tree.find(target) == nullptr) return "\"" + include.name + "\" is no file of src";
  const Layer* owner = layer_of(target, layers);
  if (owner == nullptr || layer.may_include.contains(owner->name)) return std::nullopt;
  return "layer " + layer.name + " must not include \"" + include.name + "\"";
}

/// Depth-first search over the includes; a file met again while it is still open closes a cycle.
class CycleSearch {
 public:
  explicit CycleSearch(const SourceTree& tree) : tree_(tree) {}

  Findings run() {
    for (const SourceFile& file : tree_.files) {
      if (file.is_under("src")) visit(file);
    }
    return findings_;
  }

 private:
  void visit(const SourceFile& file) {
    if (!visited_.insert(file.path).second) return;
    open_.push_back(file.path);
    for (const Include& include : includes_of(file)) {
      const SourceFile* target = include.quoted ? tree_.find("src/" + include.name) : nullptr;
      if (target == nullptr) continue;
      const auto place = std::ranges::find(open_, target->path);
      if (place != open_.end()) {
        findings_.push_back(finding(file, include.line, "cycle: " + path_from(place) + target->path));
      }
      visit(*target);
    }
    open_.pop_back();
  }

  std::string path_from(std::vector<std::string>::const_iterator place) const {
    std::string text;
    for (; place != open_.end(); ++place) text += *place + " -> ";
    return text;
  }

  const SourceTree& tree_;
  std::set<std::string> visited_;
  std::vector<std::string> open_;
  Findings findings_;
};

std::vector<std::string> words_of(const std::string& text) {
  static const std::regex blanks(R"(\s+)");
  std::vector<std::string> words;
  for (std::sregex_token_iterator word(text.begin(), text.end(), blanks, -1), end; word != end; ++word) {
    if (word->length() > 0) words.push_back(word->str());
  }
  return words;
}

}  // namespace

std::vector<Layer> declared_layers(const SourceFile& cmake_lists, Findings& findings) {
  static const std::regex form(R"(^\s*kov_layer\(([^)]*)\).*)");
  std::vector<Layer> layers;
  for (std::size_t i = 0; i < cmake_lists.lines.size(); ++i) {
    std::smatch match;
    if (!std::regex_match(cmake_lists.lines[i], match, form)) continue;
    const std::vector<std::string> words = words_of(match[1].str());
    if (words.empty()) continue;
    Layer layer{words[0], {words[0]}};
    for (std::size_t w = 1; w < words.size(); ++w) {
      if (words[w] == "DEPENDS") continue;
      const auto below = std::ranges::find(layers, words[w], &Layer::name);
      if (below == layers.end()) {
        findings.push_back(
            finding(cmake_lists, i, "layer " + layer.name + " stands on undeclared " + words[w]));
        continue;
      }
      layer.may_include.insert(below->may_include.begin(), below->may_include.end());
    }
    layers.push_back(std::move(layer));
  }
  return layers;
}

Findings forbidden_includes(const SourceTree& tree, const std::vector<Layer>& layers) {
  Findings findings;
  for (const SourceFile& file : tree.files) {
    if (!file.is_under("src")) continue;
    const Layer* layer = layer_of(file.path, layers);
    if (layer == nullptr) {
      findings.push_back(finding(file, 0, "in no layer that CMakeLists.txt declares"));
      continue;
    }
    for (const Include& include : includes_of(file)) {
      const auto fault = include.quoted ? fault_of_own_include(include, *layer, tree, layers)
                                        : fault_of_library_include(include, *layer);
      if (fault) findings.push_back(finding(file, include.line, *fault));
    }
  }
  return findings;
}

Findings include_cycles(const SourceTree& tree) { return CycleSearch(tree).run(); }

}  // namespace kov::architecture
