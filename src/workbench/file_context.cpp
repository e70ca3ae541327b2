#include "workbench/file_context.h"

namespace kov {

FileContext file_context(Workbench& workbench, User user) {
  const auto apply = [&workbench, user] {
    workbench.apply_parameters(user.messages);
    workbench.choose_initial_page(user.messages);
    workbench.display().document_changed();
  };
  return {workbench.document, workbench.file, workbench.window, user, apply};
}

}  // namespace kov
