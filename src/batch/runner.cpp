#include "batch/runner.h"

#include <exception>
#include <new>
#include <utility>
#include <variant>

#include "workbench/start_up.h"

namespace kov {
namespace {

ScriptedUser::Captions captions_of(const Options& options) {
  if (options.quiet) return ScriptedUser::Captions::none;
  return options.every_caption ? ScriptedUser::Captions::every : ScriptedUser::Captions::ten_a_second;
}

}  // namespace

Runner::Runner(const Options& options, Output& output, ScriptedUser::Sink sink,
               std::function<bool()> interrupted, PictureWriter* pictures)
    : options_(options),
      output_(output),
      sink_(std::move(sink)),
      interrupted_(std::move(interrupted)),
      user_(sink_, captions_of(options_)),
      workbench_(user_, WindowFacts{}),
      pages_(workbench_, user_.user()),
      executor_(workbench_, pages_, user_, output_, sink_, pictures) {
  user_.set_yes(options_.yes);
  user_.set_interrupted(interrupted_);
}

ExitStatus Runner::run(const std::vector<SourceLine>& lines) {
  bool failed = !start();
  for (const SourceLine& line : lines) {
    if (interrupted_() || workbench_.exit_requested || (failed && !options_.keep_going)) break;
    failed = !carry_out(line) || failed;
  }
  if (interrupted_()) return ExitStatus::interrupted;
  return failed ? ExitStatus::line_failed : ExitStatus::success;
}

bool Runner::start() {
  const bool started = succeeds([this] {
    start_up(workbench_, user_.user(), {});
    return true;
  });
  if (!started) sink_("failed: start");
  return started;
}

bool Runner::carry_out(const SourceLine& line) {
  if (options_.trace) sink_("line: " + line.place());
  const bool done = succeeds([&] { return std::visit(executor_, parse_line(line.text)); });
  if (!done) sink_("failed: " + line.place());
  return done;
}

/// Everything that makes a line fail: what the action says, what escapes from it, what the user was
/// shown, and output that could not be written.
bool Runner::succeeds(const std::function<bool()>& action) {
  bool done = false;
  try {
    done = action();
  } catch (const std::bad_alloc&) {
    sink_("error: Not enough memory; the line was ended.");
  } catch (const std::exception& error) {
    sink_(std::string("error: ") + error.what());
  }
  user_.flush_captions();
  const std::string failure = output_.take_failure();
  if (!failure.empty()) sink_("error: standard output cannot be written: " + failure);
  const bool shown = user_.take_failure();
  return done && !shown && failure.empty();
}

}  // namespace kov
