#include <array>

#include "workbench/command_groups.h"

namespace kov {
namespace {

void toggle_oplot(Workbench& workbench, User) {
  workbench.graph1_overlay = !workbench.graph1_overlay;
  workbench.document.cph.setkmi_1("Graph1_oplot_if_2_curves", workbench.graph1_overlay ? 1 : 0);
  workbench.display().graph1_oplot_changed();
}

std::string oplot_caption(const Workbench& workbench) {
  return workbench.graph1_overlay ? "oplot: on" : "oplot: off";
}

constexpr std::array<Command, 1> graph1_rows{{
    {"Graph1", "Label_g1_oplot", "", toggle_oplot, nullptr, oplot_caption},
}};

}  // namespace

std::span<const Command> graph1_commands() { return graph1_rows; }

}  // namespace kov
