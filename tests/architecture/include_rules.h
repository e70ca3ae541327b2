#pragma once

#include <set>
#include <string>
#include <vector>

#include "architecture/source_tree.h"

namespace kov::architecture {

/// A layer of src/ and what it may include: itself and everything that it stands on.
struct Layer {
  /// Its folder below src/: "lattice", or "lattice/qt" for a room of its own inside another.
  std::string name;
  std::set<std::string> may_include;
};

/// The layers as CMakeLists.txt declares them by kov_layer(NAME DEPENDS NAME...), bottom to top. That
/// declaration is the one place: what it links is what may be included. A layer that depends on one
/// that is not declared before it is reported in findings.
std::vector<Layer> declared_layers(const SourceFile& cmake_lists, Findings& findings);

/// Includes in src/ that break the house: upward or sideways ones, files in no layer, quoted names
/// that are no file of src/ (those of the tests, for instance), libraries other than the standard one
/// and POSIX, and Qt outside widgets, app and the qt rooms.
Findings forbidden_includes(const SourceTree& tree, const std::vector<Layer>& layers);

/// Cycles in the includes of src/, each named once.
Findings include_cycles(const SourceTree& tree);

}  // namespace kov::architecture
