#include <algorithm>
#include <array>

#include "config/cphclass.h"
#include "datafile/file_titles.h"
#include "datafile/read_with_overlay.h"
#include "datafile/reader.h"
#include "datafile/save_file.h"
#include "datafile/uniform_configuration.h"
#include "interact/integer_question.h"
#include "interact/warning_level.h"
#include "text/integers.h"
#include "workbench/command_groups.h"
#include "workbench/file_context.h"
#include "workbench/search_comb.h"

namespace kov {
namespace {

using Read = ReadOutcome (*)(const FileContext& context, const std::filesystem::path& path,
                             std::int32_t nelast);

void read_file(Workbench& workbench, User user, Read read, const std::filesystem::path& path,
               std::int32_t nelast) {
  read(file_context(workbench, user), path, nelast);
  workbench.restore_status_line(user.progress);
}

void open(Workbench& workbench, User user) {
  if (const auto path = user.questions.open_file(open_title())) {
    read_file(workbench, user, read_with_overlay, *path, every_step);
  }
}

void read_again(Workbench& workbench, User user) {
  if (!workbench.file.chosen) {
    open(workbench, user);
  } else {
    // A copy: the read itself writes the current file.
    const std::filesystem::path path = workbench.file.path;
    read_file(workbench, user, read_with_overlay, path, every_step);
  }
}

void read_individual(Workbench& workbench, User user) {
  if (const auto path = user.questions.open_file(read_individual_title())) {
    read_file(workbench, user, read_and_apply, *path, every_step);
  }
}

void read_till(Workbench& workbench, User user) {
  const std::int32_t step = workbench.document.cph.kmi("File_in_nelast");
  if (const auto path = user.questions.open_file(read_till_title(step))) {
    // A hand-edited parameter may be the very number that stands for reading the configuration alone.
    read_file(workbench, user, read_with_overlay, *path, std::max(step, configuration_only + 1));
  }
}

std::string read_till_caption(const Workbench& workbench) {
  return "Read till n=" + int_text(workbench.document.cph.kmi("File_in_nelast"));
}

void read_configuration(Workbench& workbench, User user) {
  if (const auto path = user.questions.open_file(read_configuration_title())) {
    read_and_apply(file_context(workbench, user), *path, configuration_only);
  }
}

void reset_cfg(Workbench& workbench, User user) {
  if (user.questions.yes_no(reset_configuration_question())) {
    reset_configuration(file_context(workbench, user));
  }
}

void save_current(const Workbench& workbench, User user) {
  if (!save_data_file(workbench.file.path, workbench.document, user)) {
    user.messages.information(workbench.file.name() + " was not saved.");
  }
  workbench.restore_status_line(user.progress);
}

void save_as(Workbench& workbench, User user) {
  const auto path = user.questions.save_file("Save File", workbench.file.path);
  if (!path) return;
  workbench.file.path = *path;
  workbench.file.chosen = true;
  workbench.file.read_aborted = false;
  save_current(workbench, user);
  workbench.display().file_renamed();
}

void save(Workbench& workbench, User user) {
  if (workbench.file.chosen && !workbench.file.read_aborted) {
    save_current(workbench, user);
  } else {
    save_as(workbench, user);
  }
}

void save_cfg_quickly(Workbench& workbench, User user) {
  save_uniform_configuration(workbench.document, user.progress);
}

void save_cfg(Workbench& workbench, User user) {
  if (user.questions.yes_no(save_configuration_question())) save_cfg_quickly(workbench, user);
}

void delete_cfg_file(Workbench&, User user) {
  if (user.questions.yes_no(delete_configuration_question())) delete_uniform_configuration(user.messages);
}

bool cfg_file_exists(const Workbench&) { return uniform_file_exists(); }

void change_warning_level(Workbench&, User user) {
  constexpr IntegerBounds levels{Messages::lowest_level, Messages::highest_level};
  const auto level =
      ask_integer(user.questions, warning_level_caption, warning_level_prompt(), user.messages.wl(), levels);
  if (level) user.messages.set_wl(*level);
}

std::string warning_level_item(const Workbench& workbench) {
  return "Change warnl.  " + int_text(workbench.person.wl());
}

void exit_program(Workbench& workbench, User) { workbench.exit_requested = true; }

// clang-format off
constexpr std::array<Command, 14> file_rows{{
    {"File", "&Open",            "Ctrl+O",       open},
    {"File", "Read again",       "Ctrl+R",       read_again},
    {"File", "Read indiv.",      "Ctrl+I",       read_individual},
    {"File", "Read till n=",     "",             read_till, nullptr, read_till_caption},
    {"File", "Read new Cfg",     "",             read_configuration},
    {"File", "Reset Cfg",        "",             reset_cfg},
    {"File", "Save",             "Ctrl+S",       save},
    {"File", "Save as",          "Ctrl+Shift+S", save_as},
    {"File", "Save Cfg",         "",             save_cfg},
    {"File", "Save Cfg quickly", "Ctrl+Shift+C", save_cfg_quickly},
    {"File", "Del Cfg File",     "",             delete_cfg_file, cfg_file_exists},
    {"File", "C. Warnlevel",     "",             change_warning_level, nullptr, warning_level_item},
    {"File", "Search Comb",      "Ctrl+X",       search_comb},
    {"File", "Exit",             "",             exit_program},
}};
// clang-format on

}  // namespace

std::span<const Command> file_commands() { return file_rows; }

}  // namespace kov
