#include <array>

#include "graphs/ask_ny.h"
#include "workbench/command_groups.h"

namespace kov {
namespace {

void set_ny(Workbench& workbench, User user) {
  if (Button_g2a_nyClick(workbench.document.cph, user))
    workbench.apply_parameter("Graph2a_ny", user.messages);
}

std::string ny_caption(const Workbench& workbench) { return Button_g2a_ny_caption(workbench.document.cph); }

constexpr std::array<Command, 1> graph2_rows{{
    {"Graph2", "Button_g2a_ny", "", set_ny, nullptr, ny_caption},
}};

}  // namespace

std::span<const Command> graph2_commands() { return graph2_rows; }

}  // namespace kov
