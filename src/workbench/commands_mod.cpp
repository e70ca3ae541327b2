#include <array>

#include "lattice/conversions.h"
#include "lattice/start_patterns.h"
#include "text/integers.h"
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

// clang-format off
constexpr std::array<Command, 6> mod_rows{{
    {"Mod", "Init n=0 with 1",    "", init<StartPattern::one>},
    {"Mod", "Init n=0 with 1_1",  "", init<StartPattern::one_one>},
    {"Mod", "Init For Test",      "", init<StartPattern::test_block>},
    {"Mod", "Set Default Offset", "", set_default_offset},
    {"Mod", "All to Float",       "", convert_to_float},
    {"Mod", "Invert",             "", invert},
}};
// clang-format on

}  // namespace

std::span<const Command> mod_commands() { return mod_rows; }

}  // namespace kov
