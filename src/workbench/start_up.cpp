#include "workbench/start_up.h"

#include <exception>
#include <new>
#include <string>

#include "datafile/reader.h"
#include "numbers/checked_integer.h"
#include "workbench/file_context.h"

namespace kov {

namespace {

void read_arguments(Workbench& workbench, User user, std::span<const std::filesystem::path> arguments) {
  if (arguments.size() > 1) {
    user.messages.error("Too many start parameters");
  } else if (arguments.empty()) {
    read_uniform_configuration(file_context(workbench, user));
  } else {
    const ReadOutcome outcome = read_and_apply(file_context(workbench, user), arguments.front(), every_step);
    if (outcome != ReadOutcome::not_opened) workbench.restore_status_line(user.progress);
  }
}

}  // namespace

void start_up(Workbench& workbench, User user, std::span<const std::filesystem::path> arguments) {
  try {
    require_negative_minimum(nu_min_int);
    user.progress.set_caption(std::string(program_base_name) + " (no file specified)");
    read_arguments(workbench, user, arguments);
  } catch (const std::bad_alloc&) {
    user.messages.error("Not enough memory; the read was ended.");
  } catch (const std::exception& error) {
    user.messages.error(error.what());
  }
}

}  // namespace kov
