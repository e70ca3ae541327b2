#include "workbench/file_context.h"

namespace kov {

FileContext file_context(Workbench& workbench, User user) {
  return {.document = workbench.document,
          .current = workbench.file,
          .window = workbench.window,
          .user = user,
          .apply = [&workbench, user] { workbench.apply_parameters(user.messages); },
          .show_initial_page = [&workbench, user] { workbench.choose_initial_page(user.messages); },
          .redisplay = [&workbench] { workbench.display().document_changed(); }};
}

}  // namespace kov
