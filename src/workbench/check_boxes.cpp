#include "workbench/check_boxes.h"

#include <algorithm>
#include <array>
#include <optional>

namespace kov {
namespace {

struct Graph1Box {
  std::string_view name;
  std::string_view keyword;
};

/// In the order of Workbench::graph1_checked.
// clang-format off
constexpr std::array<Graph1Box, 10> graph1_boxes{{
    {"CB0qre",   "Graph1_CB0qre_checked"},
    {"CB0qim",   "Graph1_CB0qim_checked"},
    {"CB0qq",    "Graph1_CB0qq_checked"},
    {"CB0qa",    "Graph1_CB0qa_checked"},
    {"CB0cntAt", "Graph1_CB0cntAt_checked"},
    {"CB1qre",   "Graph1_CB1qre_checked"},
    {"CB1qim",   "Graph1_CB1qim_checked"},
    {"CB1qq",    "Graph1_CB1qq_checked"},
    {"CB1qa",    "Graph1_CB1qa_checked"},
    {"CB1cntAt", "Graph1_CB1cntAt_checked"},
}};
// clang-format on

constexpr std::array<std::string_view, 2> destination_boxes = {"CB_Range1IsDest", "CB_Range2IsDest"};

/// The check box whose name, or whose keyword, is the text.
std::optional<std::size_t> graph1_box(std::string_view Graph1Box::*field, std::string_view text) {
  const auto found = std::find_if(graph1_boxes.begin(), graph1_boxes.end(),
                                  [&](const Graph1Box& box) { return box.*field == text; });
  if (found == graph1_boxes.end()) return std::nullopt;
  return static_cast<std::size_t>(found - graph1_boxes.begin());
}

void take_from_parameter(Workbench& workbench, std::size_t index) {
  workbench.graph1_checked[index] = workbench.document.cph.kmi(graph1_boxes[index].keyword) != 0;
}

}  // namespace

bool set_check_box(Workbench& workbench, std::string_view name, bool checked) {
  for (std::size_t range = 0; range < destination_boxes.size(); ++range) {
    if (destination_boxes[range] == name) {
      workbench.range_is_destination[range] = checked;
      return true;
    }
  }
  const auto index = graph1_box(&Graph1Box::name, name);
  if (!index) return false;
  workbench.graph1_checked[*index] = checked;
  cphclass& cph = workbench.document.cph;
  if (cph.kmi("Graph1_CB_state_saving") != 0) cph.setkmi_1(graph1_boxes[*index].keyword, checked ? 1 : 0);
  workbench.display().graph1_box_changed();
  return true;
}

void take_check_boxes_from_parameters(Workbench& workbench) {
  for (std::size_t index = 0; index < graph1_boxes.size(); ++index) take_from_parameter(workbench, index);
}

void take_check_box_from_parameter(Workbench& workbench, std::string_view keyword) {
  const auto index = graph1_box(&Graph1Box::keyword, keyword);
  if (index) take_from_parameter(workbench, *index);
}

}  // namespace kov
