#include "workbench/workbench.h"

#include <string>

#include "lattice/lattice_status.h"
#include "text/integers.h"
#include "workbench/check_boxes.h"

namespace kov {
namespace {

using Effect = void (*)(Workbench& workbench, std::int32_t value);

/// What a parameter's value sets besides being read where it is needed, and the values that do.
struct ParameterEffect {
  std::string_view keyword;
  std::int32_t lowest;
  std::int32_t highest;
  Effect apply;
};

// clang-format off
constexpr std::array<ParameterEffect, 4> effects{{
    {"Algadd_DefaultTableIndex",       0,          Algadd_TableCount - 1,       [](Workbench& w, std::int32_t i) { w.document.algadd.set_aanr(i); }},
    {"Sums1_DefaultTableIndex",        0,          RangeTables::TableCount - 1, [](Workbench& w, std::int32_t i) { w.document.ranges.choose(i); }},
    {"Graph1_oplot_if_2_curves",       lowest_int, highest_int,                 [](Workbench& w, std::int32_t i) { w.graph1_overlay = i != 0; }},
    {"Graph2_RB_re_im_qa_qq_cntAt_12", 0,          9,                           [](Workbench& w, std::int32_t i) { w.graph2_radio_index = i; }},
}};
// clang-format on

void report_invalid_index(std::string_view keyword, std::int32_t value, Messages& messages) {
  messages.error("InitPrgPar: Invalid default index: \nkmi(\"" + std::string(keyword) +
                 "\")=" + int_text(value));
}

void apply(const ParameterEffect& effect, Workbench& workbench, Messages& messages) {
  const std::int32_t value = workbench.document.cph.kmi(effect.keyword);
  if (value < effect.lowest || value > effect.highest) {
    report_invalid_index(effect.keyword, value, messages);
  } else {
    effect.apply(workbench, value);
  }
}

}  // namespace

Workbench::Workbench(Messages& messages, const WindowFacts& facts)
    : person(messages), document(messages), window(facts) {
  document.cph.InitPrgPar(window);
  document.reset_data();
  apply_parameters(messages);
}

void Workbench::apply_parameters(Messages& messages) {
  for (const ParameterEffect& effect : effects) apply(effect, *this, messages);
  take_check_boxes_from_parameters(*this);
}

void Workbench::apply_parameter(std::string_view keyword, Messages& messages) {
  for (const ParameterEffect& effect : effects) {
    if (effect.keyword == keyword) apply(effect, *this, messages);
  }
  take_check_box_from_parameter(*this, keyword);
  if (keyword == "Graph2a_ny") reset_curve_states(document.curve_states, document.cph.kmi(keyword));
  display_->parameter_changed(keyword);
}

void Workbench::choose_initial_page(Messages& messages) {
  constexpr std::string_view keyword = "F1_Initial_Active_Page";
  const std::int32_t page = document.cph.kmi(keyword);
  if (page < 0 || page >= window.page_count) {
    report_invalid_index(keyword, page, messages);
  } else {
    active_page = page;
  }
}

void Workbench::show_page(Page page) {
  active_page = static_cast<int>(page);
  display_->page_chosen();
}

void Workbench::show_status(Progress& progress) const {
  restore_status_line(progress);
  display_->lattices_changed();
}

void Workbench::restore_status_line(Progress& progress) const {
  progress.set_caption(status_line(document.lmap));
}

}  // namespace kov
