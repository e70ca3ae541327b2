#pragma once

#include <functional>
#include <string>
#include <vector>

#include "batch/runner.h"
#include "support/string_output.h"
#include "support/temporary_folder.h"

namespace kov {

/// One run of kovbatch on the lines of a text, in a folder of its own: what it wrote, reported and gave.
struct Session {
  TemporaryFolder folder;
  Options options;
  std::string output;
  std::vector<std::string> reports;
  int status = -1;
  std::function<bool()> interrupted = [] { return false; };
  /// Looks at the workbench after the run.
  std::function<void(const Workbench&)> inspect = [](const Workbench&) {};

  Session() { options.every_caption = true; }

  /// Runs the lines of the text as the script "s".
  Session& run(const std::string& text) {
    output.clear();
    reports.clear();
    StringOutput text_output(output);
    Runner runner(
        options, text_output, [this](const std::string& report) { reports.push_back(report); }, interrupted);
    status = static_cast<int>(runner.run(script_lines("s", text)));
    inspect(runner.workbench());
    return *this;
  }
};

using Reports = std::vector<std::string>;

}  // namespace kov
