#include "workbench/search_comb.h"

#include <chrono>
#include <ctime>

#include "datafile/date_time.h"
#include "datafile/replacement_file.h"
#include "tools/comb_request.h"
#include "tools/comb_search.h"

namespace kov {

void search_comb(Workbench& workbench, User user) {
  const Document& document = workbench.document;
  const auto request = ask_for_comb_search(document.lmap, document.ranges, document.cph, user);
  if (!request) return;
  const CombFileHead head{.date_time = date_time_text(std::time(nullptr)),
                          .source = workbench.file.name(),
                          .lattice_point_count = document.lmap.count()};
  ReplacementFile file(comb_file_name);
  const double tested =
      write_comb_search(*request, head, search_order_on_all_cores, std::chrono::steady_clock::now,
                        user.progress, [&file](std::string_view text) { file.write(text); });
  file.commit();
  workbench.restore_status_line(user.progress);
  user.messages.information(tested_text(tested) + "The results are in " + comb_file_name + ".");
}

}  // namespace kov
