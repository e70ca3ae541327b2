#include "support/points_text.h"

#include "text/integers.h"

namespace kov {
namespace {

std::string part_text(const ratyp& part) { return to_text(part) + (part.exact() ? "" : "~"); }

std::string quantity_text(const cotyp& q) {
  const std::string real = part_text(q.re);
  return q.im == ratyp(0) && q.im.exact() ? real : real + " " + part_text(q.im) + "i";
}

}  // namespace

std::string point_text(const Lk& key, const cotyp& q) {
  std::size_t used = l_position;
  while (used > 1 && key.coo[used - 1] == 0) --used;
  std::string text = int_text(key.l());
  for (std::size_t i = 0; i < used; ++i) text.append(" ").append(int_text(key.coo[i]));
  return text + ": " + quantity_text(q);
}

std::string points_text(const Lmap& lmap) {
  std::string text;
  for (auto point = lmap.begin(); point != lmap.end(); ++point) {
    text += point_text(point.key(), point.quantity()) + "\n";
  }
  return text;
}

}  // namespace kov
