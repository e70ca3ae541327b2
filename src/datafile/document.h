#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "algadd/algadd.h"
#include "config/cphclass.h"
#include "graphs/curve_states.h"
#include "lattice/lmap.h"
#include "lattice/slice_view.h"
#include "sums/range_tables.h"

namespace kov {

/// Everything that a data file holds.
struct Document {
  explicit Document(Messages& messages) : cph(messages) {}

  cphclass cph;
  Lmap lmap;
  /// True while the store holds 1/q for every quantity q.
  bool inverted = false;
  Algadd algadd;
  RangeTables ranges;
  SliceView slice;
  /// How each curve of the stacked graph is drawn.
  CurveStates curve_states{};
  /// The Comment page's text; its lines end with CR LF.
  std::string comment;

  /// Lattices, tables, view and comment as at start-up; parameters stay.
  void reset_data();

  /// Appends a line to the comment; a last line that has no end yet gets it first.
  void append_comment_line(std::string_view line);
};

/// Which file is worked on.
struct CurrentFile {
  /// Absolute once a file was chosen.
  std::filesystem::path path = "a.aa1";
  /// Set by a complete read or a confirmed save dialog.
  bool chosen = false;
  /// Set by an aborted read of this file, until a complete read or a confirmed save dialog: the file holds
  /// what the document does not, so it is not to be written over without asking for a name.
  bool read_aborted = false;

  /// The name without its folder, as progress texts and the file itself show it.
  std::string name() const { return path.filename().string(); }
};

/// Looked up in the current directory.
inline constexpr const char* uniform_file_name = "kovcfg.aa1";

}  // namespace kov
