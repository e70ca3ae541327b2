#include "workbench/command.h"

#include <algorithm>
#include <new>
#include <vector>

#include "interact/error_text.h"
#include "numbers/errors.h"
#include "text/tokens.h"
#include "workbench/command_groups.h"

namespace kov {
namespace {

std::vector<Command> every_group() {
  std::vector<Command> all;
  for (const std::span<const Command> group :
       {file_commands(), util_commands(), cmd_commands(), mod_commands(), alg_commands(), help_commands(),
        bar_commands(), algadd_table_commands(), sums1_commands(), graph1_commands(), graph2_commands()}) {
    all.insert(all.end(), group.begin(), group.end());
  }
  return all;
}

std::string without_mnemonic(std::string_view caption) {
  std::string text(caption);
  text.erase(std::remove(text.begin(), text.end(), '&'), text.end());
  return text;
}

void show_error(const std::string& text, const Workbench& workbench, User user) {
  user.messages.error(text);
  workbench.show_status(user.progress);
}

}  // namespace

std::span<const Command> commands() {
  static const std::vector<Command> all = every_group();
  return all;
}

bool is_enabled(const Command& command, const Workbench& workbench) {
  return command.enabled == nullptr || command.enabled(workbench);
}

std::string live_caption(const Command& command, const Workbench& workbench) {
  return command.live_caption == nullptr ? without_mnemonic(command.caption)
                                         : command.live_caption(workbench);
}

std::string item_name(std::string_view caption) {
  const std::string text = without_mnemonic(caption);
  std::string name;
  Tokens tokens(text);
  for (std::string_view token = tokens.next(); !token.empty(); token = tokens.next()) {
    if (!name.empty()) name += ' ';
    name += token;
  }
  const std::size_t last = name.find_last_not_of("=: ");
  return name.substr(0, last == std::string::npos ? 0 : last + 1);
}

const Command* find_command(std::string_view menu, std::string_view item) {
  const auto all = commands();
  const auto found = std::find_if(all.begin(), all.end(), [&](const Command& command) {
    return command.menu == menu && item_name(command.caption) == item;
  });
  return found == all.end() ? nullptr : &*found;
}

void run_command(const Command& command, Workbench& workbench, User user) {
  const auto operation = [&] { command.run(workbench, user); };
  run_operation(item_name(command.caption), operation, workbench, user);
}

void run_operation(const std::string& name, const std::function<void()>& operation,
                   const Workbench& workbench, User user) {
  try {
    operation();
  } catch (const std::bad_alloc&) {
    show_error("Not enough memory; the command was ended.", workbench, user);
  } catch (const math_error& error) {
    show_error("MathError in " + name + ":\n" + error.what(), workbench, user);
  } catch (...) {
    show_error(text_of_handled_error(), workbench, user);
  }
}

}  // namespace kov
