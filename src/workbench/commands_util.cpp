#include <array>

#include "interact/integer_question.h"
#include "workbench/command_groups.h"

namespace kov {
namespace {

void choose_page(Workbench& workbench, User user) {
  const IntegerBounds pages{0, workbench.window.page_count - 1};
  const auto page = ask_integer(user.questions, "Page hotkey", "To quickly select active page",
                                workbench.active_page, pages);
  if (page) workbench.show_page(static_cast<Page>(*page));
}

constexpr std::array<Command, 1> util_rows{{
    {"Util", "ActPage", "Ctrl+Y", choose_page},
}};

}  // namespace

std::span<const Command> util_commands() { return util_rows; }

}  // namespace kov
