#include "workbench/file_context.h"

namespace kov {

FileContext file_context(Workbench& workbench, User user) {
  const auto apply = [&workbench, user] {
    workbench.apply_parameters(user.messages);
    workbench.show_initial_page(user.messages);
  };
  return {workbench.document, workbench.file, workbench.window, user, apply};
}

}  // namespace kov
