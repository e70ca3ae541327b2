#include "workbench/start_up.h"

#include <string>

#include "datafile/reader.h"
#include "workbench/file_context.h"

namespace kov {

void start_up(Workbench& workbench, User user, std::span<const std::filesystem::path> arguments) {
  user.progress.set_caption(std::string(program_base_name) + " (no file specified)");
  if (arguments.size() > 1) {
    user.messages.error("Too many start parameters");
  } else if (arguments.empty()) {
    read_uniform_configuration(file_context(workbench, user));
  } else {
    const auto path = std::filesystem::absolute(arguments.front());
    const ReadOutcome outcome = read_and_apply(file_context(workbench, user), path, every_step);
    if (outcome != ReadOutcome::not_opened) workbench.restore_status_line(user.progress);
  }
}

}  // namespace kov
