#include "help/cut_and_normalise.h"

#include "text/integers.h"

namespace kov {

// From here to the end of the function the text is that of the help's page.
// Example:
void cut_and_normalise(Lmap& lmap, const cphclass& cph, User user) {
  if (lmap.empty()) return;
  const std::int32_t farthest = cph.kmi("N0iniarea_maxcoo");
  const std::int32_t nlast = lmap.nlast();
  cotyp sum;
  for (auto point = lmap.row_begin(nlast); point != lmap.end();) {
    const std::int32_t k1 = point.key().coo[1];
    if (k1 < -farthest || k1 > farthest) {
      point = lmap.erase(point);
    } else {
      sum += point.quantity();
      ++point;
    }
  }
  if (is_zero(sum)) return;
  Lmap row = lmap.extract_rows(nlast, nlast);
  row.transform([&sum](const cotyp& q) { return q / sum; });
  user.messages.information(int_text(static_cast<std::int64_t>(row.count())) + " points kept");
  lmap.merge_new(row);
}

}  // namespace kov
