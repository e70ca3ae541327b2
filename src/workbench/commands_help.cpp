#include <array>
#include <string>

#include "algadd/process_memory.h"
#include "algadd/state_report.h"
#include "workbench/command_groups.h"
#include "workbench/compilation_date.h"

namespace kov {
namespace {

void show_info(Workbench&, User user) {
  user.messages.information(std::string("Date of this version:  ") + CompilationDateClass::date +
                            "\n\nDescription:\n Software for testing algorithms\n"
                            " on multidimensional numerical lattices\n"
                            " and for visualization the results\n");
}

void show_state(Workbench& workbench, User user) {
  const std::string report = state_report(workbench.document.lmap, workbench.document.algadd);
  if (!user.questions.all_or_ok(report + memory_probe_offer)) return;
  give_process_memory_back();
  user.messages.information(allocatable_text(allocatable_megabytes()));
}

constexpr std::array<Command, 2> help_rows{{
    {"Help", "Info", "", show_info},
    {"Help", "State", "", show_state},
}};

}  // namespace

std::span<const Command> help_commands() { return help_rows; }

}  // namespace kov
