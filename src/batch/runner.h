#pragma once

#include <functional>
#include <vector>

#include "batch/line_executor.h"
#include "batch/options.h"
#include "batch/output.h"
#include "batch/script.h"
#include "interact/scripted_user.h"
#include "pictures/picture_writer.h"
#include "workbench/pages.h"
#include "workbench/workbench.h"

namespace kov {

/// How kovbatch ends.
enum class ExitStatus { success = 0, line_failed = 1, unreadable = 2, interrupted = 130 };

/// Carries out the lines of scripts on a workbench of its own, and reports the lines that fail.
class Runner {
 public:
  /// The output takes what Print and Echo write, the sink the reports. interrupted is asked at every
  /// check for Break and between lines. Lines that draw need somebody who writes pictures.
  Runner(const Options& options, Output& output, ScriptedUser::Sink sink, std::function<bool()> interrupted,
         PictureWriter* pictures = nullptr);
  Runner(const Runner&) = delete;
  Runner& operator=(const Runner&) = delete;

  /// Starts the workbench as kov starts without an argument, then carries out the lines: up to the first
  /// that fails, unless the options say to keep going; up to an interrupt; up to Exit.
  ExitStatus run(const std::vector<SourceLine>& lines);

  const Workbench& workbench() const { return workbench_; }

 private:
  bool start();
  bool carry_out(const SourceLine& line);
  bool succeeds(const std::function<bool()>& action);

  Options options_;
  Output& output_;
  ScriptedUser::Sink sink_;
  std::function<bool()> interrupted_;
  ScriptedUser user_;
  Workbench workbench_;
  Pages pages_;
  LineExecutor executor_;
};

}  // namespace kov
