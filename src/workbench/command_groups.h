#pragma once

#include <span>

#include "workbench/command.h"

namespace kov {

// The rows of the command table, menu by menu and each in the menu's order.

std::span<const Command> file_commands();
std::span<const Command> util_commands();
std::span<const Command> cmd_commands();
std::span<const Command> mod_commands();
std::span<const Command> alg_commands();
std::span<const Command> help_commands();
std::span<const Command> bar_commands();
/// The buttons of the Algadd page's table menu, by their names.
std::span<const Command> algadd_table_commands();
/// The buttons of the Sums1 page's Modify Range menu.
std::span<const Command> sums1_commands();
/// The labels of the Graph1 page that can be clicked, by their names.
std::span<const Command> graph1_commands();
/// The buttons of the Graph2 page, by their names.
std::span<const Command> graph2_commands();

}  // namespace kov
