#pragma once

#include <cstdint>
#include <string>

#include "batch/output.h"
#include "batch/script_line.h"
#include "interact/scripted_user.h"
#include "pictures/picture_writer.h"
#include "workbench/pages.h"
#include "workbench/workbench.h"

namespace kov {

/// Carries out single lines, of which each kind is one overload. Every overload gives false when the line
/// failed for a reason of its own, which it has then reported; errors that the user was shown are for
/// the caller to ask for.
class LineExecutor {
 public:
  /// Without a writer of pictures, lines that draw fail.
  LineExecutor(Workbench& workbench, Pages& pages, ScriptedUser& user, Output& output,
               const ScriptedUser::Sink& sink, PictureWriter* pictures)
      : workbench_(workbench),
        pages_(pages),
        user_(user),
        output_(output),
        sink_(sink),
        pictures_(pictures) {}

  bool operator()(const CommandLine& line);
  bool operator()(const SetLine& line);
  bool operator()(const CheckLine& line);
  bool operator()(const RadioLine& line);
  bool operator()(const CommentLine& line);
  bool operator()(const EchoLine& line);
  bool operator()(const BreakLine& line);
  bool operator()(const PrintLine& line);
  bool operator()(const DrawLine& line);
  bool operator()(const CellLine& line);
  bool operator()(const KeyLine& line);
  bool operator()(const ClickLine& line);
  bool operator()(const UnknownLine& line);

 private:
  class Answers;
  class Break;

  bool fail(const std::string& reason);
  bool fail_for_want_of(const char* what, const std::string& name);
  /// The grid, entered; null, and reported, when it has no such cell. Only for names of grids.
  GridModel* enter(const CellName& place);
  /// Likewise, with the cell selected.
  GridModel* select(const CellName& place);

  Workbench& workbench_;
  Pages& pages_;
  ScriptedUser& user_;
  Output& output_;
  const ScriptedUser::Sink& sink_;
  PictureWriter* pictures_;
  /// The check at which the next line that runs anything meets Break; 0 for none.
  std::int32_t pending_break_ = 0;
};

}  // namespace kov
