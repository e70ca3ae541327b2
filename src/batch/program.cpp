#include "batch/program.h"

#include <unistd.h>

#include <exception>
#include <string>
#include <vector>

#include "algadd/process_memory.h"
#include "batch/interrupt.h"
#include "batch/options.h"
#include "batch/output.h"
#include "batch/script.h"

namespace kov {
namespace {

/// The lines in the order in which they run. Everything is read before the first line is carried out, so
/// that a script's path means the same whatever folder a line changes to.
std::vector<SourceLine> read_lines(const Options& options) {
  std::string command_lines;
  for (const std::string& line : options.lines) command_lines += line + "\n";
  std::vector<SourceLine> lines = script_lines("-c", command_lines);
  for (const std::string& script : options.scripts) {
    const std::vector<SourceLine> more = script_lines(script, read_script(script));
    lines.insert(lines.end(), more.begin(), more.end());
  }
  return lines;
}

ExitStatus write_text(const std::string& text, Output& output, const ScriptedUser::Sink& report) {
  output.write(text);
  const std::string failure = output.take_failure();
  if (failure.empty()) return ExitStatus::success;
  report("error: standard output cannot be written: " + failure);
  return ExitStatus::line_failed;
}

ExitStatus run_options(const Options& options, Output& output, const ScriptedUser::Sink& report,
                       PictureWriter* pictures) {
  if (options.mode == Options::Mode::help) return write_text(help_text(), output, report);
  if (options.mode == Options::Mode::version) return write_text(version_text(), output, report);
  const std::vector<SourceLine> lines = read_lines(options);
  if (interrupted()) return ExitStatus::interrupted;
  return Runner(options, output, report, interrupted, pictures).run(lines);
}

}  // namespace

ExitStatus run_program(std::span<const char* const> arguments, PictureWriter* pictures) {
  set_up_process_memory();
  install_signal_handlers();
  DescriptorOutput output(STDOUT_FILENO);
  DescriptorOutput reports(STDERR_FILENO);
  // Standard output first, so that on a terminal a report stands behind what was printed before it.
  const auto report = [&](const std::string& text) {
    output.flush();
    reports.write(text + "\n");
    reports.flush();
  };
  try {
    return run_options(parse_options(arguments), output, report, pictures);
  } catch (const option_error& error) {
    report(std::string("error: ") + error.what() + "\n  kovbatch --help shows the options");
    return ExitStatus::unreadable;
  } catch (const script_error& error) {
    report(std::string("error: ") + error.what());
    return ExitStatus::unreadable;
  } catch (const std::exception& error) {
    report(std::string("error: ") + error.what());
    return ExitStatus::line_failed;
  }
}

}  // namespace kov
