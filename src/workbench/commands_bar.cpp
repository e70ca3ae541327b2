#include <array>

#include "datafile/uniform_configuration.h"
#include "text/integers.h"
#include "workbench/choose_table.h"
#include "workbench/command_groups.h"

namespace kov {
namespace {

std::string algadd_table_caption(const Workbench& workbench) {
  return "AA:" + int_text(workbench.document.algadd.aanr());
}

std::string sums1_table_caption(const Workbench& workbench) {
  return "S1:" + int_text(workbench.document.ranges.current_index());
}

void show_uniform_file(Workbench&, User user) { user.messages.information(uniform_file_report()); }

// clang-format off
constexpr std::array<Command, 3> bar_rows{{
    {"Bar", "AA:", "", choose_algadd_table, nullptr, algadd_table_caption},
    {"Bar", "S1:", "", choose_sums1_table,  nullptr, sums1_table_caption},
    {"Bar", "C",   "", show_uniform_file},
}};
// clang-format on

}  // namespace

std::span<const Command> bar_commands() { return bar_rows; }

}  // namespace kov
