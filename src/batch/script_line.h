#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "batch/picture_size.h"
#include "interact/grid_model.h"
#include "workbench/workbench.h"

namespace kov {

// The lines of a script, as values: what a line asks for, before anybody looks whether there is such a
// command, keyword or check box.

/// "MENU/ITEM" or "MENU/ITEM: ANSWER | ANSWER ...".
struct CommandLine {
  std::string menu;
  /// Runs of blanks as one blank.
  std::string item;
  /// An answer written "" is the empty text.
  std::vector<std::string> answers;
  friend bool operator==(const CommandLine&, const CommandLine&) = default;
};

/// "Set KEYWORD VALUE"; the value is not looked at here.
struct SetLine {
  std::string keyword;
  std::string value;
  friend bool operator==(const SetLine&, const SetLine&) = default;
};

/// "Check NAME on" or "Check NAME off".
struct CheckLine {
  std::string name;
  bool on = false;
  friend bool operator==(const CheckLine&, const CheckLine&) = default;
};

/// "Radio Graph2 INDEX", 0 ... 9.
struct RadioLine {
  int index = 0;
  friend bool operator==(const RadioLine&, const RadioLine&) = default;
};

/// "Comment TEXT": the text behind the one blank that follows the word, further blanks included.
struct CommentLine {
  std::string text;
  friend bool operator==(const CommentLine&, const CommentLine&) = default;
};

/// "Echo TEXT", likewise.
struct EchoLine {
  std::string text;
  friend bool operator==(const EchoLine&, const EchoLine&) = default;
};

/// "Break N", N >= 1.
struct BreakLine {
  std::int32_t check = 1;
  friend bool operator==(const BreakLine&, const BreakLine&) = default;
};

/// "Print WHAT" or "Print WHAT > FILE".
struct PrintLine {
  std::string what;
  std::optional<std::string> file;
  friend bool operator==(const PrintLine&, const PrintLine&) = default;
};

/// "Draw Graph1 FILE" or "Draw Graph2 FILE", perhaps with a size behind the file.
struct DrawLine {
  Page page = Page::graph1;
  std::string file;
  PictureSize size;
  friend bool operator==(const DrawLine&, const DrawLine&) = default;
};

/// A cell of a grid, which may have neither that name nor that cell.
struct CellName {
  std::string grid;
  GridCell cell;
  friend bool operator==(const CellName&, const CellName&) = default;
};

/// "Cell GRID COLUMN,ROW TEXT": the text behind the one blank that follows the cell; it may be empty.
struct CellLine {
  CellName place;
  std::string text;
  friend bool operator==(const CellLine&, const CellLine&) = default;
};

/// "Key GRID COLUMN,ROW KEY".
struct KeyLine {
  CellName place;
  std::string key;
  friend bool operator==(const KeyLine&, const KeyLine&) = default;
};

/// "Click GRID COLUMN,ROW left", "right" or "double", perhaps with answers as a command's.
struct ClickLine {
  CellName place;
  GridClick click = GridClick::left;
  std::vector<std::string> answers;
  friend bool operator==(const ClickLine&, const ClickLine&) = default;
};

/// A line of no known form, and why.
struct UnknownLine {
  std::string reason;
  friend bool operator==(const UnknownLine&, const UnknownLine&) = default;
};

using ScriptLine = std::variant<CommandLine, SetLine, CheckLine, RadioLine, CommentLine, EchoLine, BreakLine,
                                PrintLine, DrawLine, CellLine, KeyLine, ClickLine, UnknownLine>;

/// Reads one line without leading and trailing blanks that is neither empty nor a remark.
ScriptLine parse_line(std::string_view line);

}  // namespace kov
