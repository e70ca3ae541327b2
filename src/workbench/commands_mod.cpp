#include <array>

#include "lattice/conversions.h"
#include "lattice/lattice_status.h"
#include "lattice/start_patterns.h"
#include "text/integers.h"
#include "tools/cross_product.h"
#include "tools/initial_area.h"
#include "workbench/command_groups.h"

namespace kov {
namespace {

constexpr const char* float_question =
    "Do you want irreversible conversion\nof all quantities to floating point?";
constexpr const char* invert_question =
    "Actually all quantities of lattice are\nrepresented regularly (non-inverted).\n"
    "Do you want inverted representation\nof nonzero quantities in the form 1/quantity?";
constexpr const char* revert_question =
    "Actually nonzero quantities of lattice are\nrepresented in inverted form (1/quantity).\n"
    "Do you again want regular representation\nof all quantities?";

template <StartPattern pattern>
void init(Workbench& workbench, User user) {
  fill_start_pattern(workbench.document.lmap, pattern);
  workbench.show_status(user.progress);
}

void init_area(Workbench& workbench, User user) {
  Document& document = workbench.document;
  const InitialArea area = InitialArea::read(document.cph);
  // Only a line of a data file can have done this: in steps of zero the area would have no end.
  if (area.stepdist < 1) return user.messages.error("N0iniarea_stepdist must be positive");
  if (!user.questions.yes_no(area.question())) return;
  document.inverted = false;
  const AreaEnd end = fill_initial_area(document.lmap, area, SliceView::reference_key(),
                                        AreaLimits::read(document.cph), user.progress);
  if (end == AreaEnd::out_of_bounds) user.messages.information(memory_stop_text);
  workbench.show_status(user.progress);
}

void set_default_offset(Workbench& workbench, User user) {
  workbench.document.slice.set_default(workbench.document.cph);
  workbench.show_status(user.progress);
}

void convert_to_float(Workbench& workbench, User user) {
  if (!user.questions.yes_no(float_question)) return;
  all_to_float(workbench.document.lmap);
  workbench.show_status(user.progress);
}

void invert(Workbench& workbench, User user) {
  Document& document = workbench.document;
  if (!user.questions.yes_no(document.inverted ? revert_question : invert_question)) return;
  const std::size_t count = invert_all(document.lmap);
  document.inverted = !document.inverted;
  workbench.show_status(user.progress);
  user.messages.information(int_text(static_cast<std::int64_t>(count)) + "   nonzero quantities inverted");
}

void cross_product(Workbench& workbench, User user) {
  const auto offset = ask_for_cross_offset(user.questions);
  if (!offset) return;
  Document& document = workbench.document;
  const CrossResult result = calculate_cross_products(
      document.lmap, *offset, document.cph.kmi("Sums_EntryCountPerDisplay"), user.progress);
  workbench.show_status(user.progress);
  user.messages.information(result.text());
}

// clang-format off
constexpr std::array<Command, 8> mod_rows{{
    {"Mod", "Init n=0 with 1",    "",       init<StartPattern::one>},
    {"Mod", "Init n=0 with 1_1",  "",       init<StartPattern::one_one>},
    {"Mod", "Init n=0 area",      "Ctrl+Q", init_area},
    {"Mod", "Init For Test",      "",       init<StartPattern::test_block>},
    {"Mod", "Set Default Offset", "",       set_default_offset},
    {"Mod", "All to Float",       "",       convert_to_float},
    {"Mod", "Invert",             "",       invert},
    {"Mod", "Cross Product",      "",       cross_product},
}};
// clang-format on

}  // namespace

std::span<const Command> mod_commands() { return mod_rows; }

}  // namespace kov
