#include "file_desk.h"

#include "text/integers.h"

namespace kov {

std::string point_line(std::int32_t l, std::int32_t n, std::int32_t k1, std::string_view quantity) {
  return "e_l " + int_text(l) + " " + int_text(n) + " " + int_text(k1) + " " + repeated("0", 29) + " " +
         std::string(quantity);
}

std::string repeated(std::string_view text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all.append(i == 0 ? "" : " ").append(text);
  return all;
}

void fill_every_part(Document& document) {
  document.cph.setkmi_1("Slq_ColCount", 25);
  document.cph.setkmi_1("Graph2a_ny", -7);
  document.lmap.set(Lk::at(0, 0), cotyp(1, 2, 3, 4));
  document.lmap.set(Lk::at(-2, 1, 5), cotyp(7));
  document.lmap.set(Lk::filled(lowest_int), cotyp(-2, 1, -1, 3));
  document.lmap.set(Lk::filled(highest_int), cotyp::floating(0.25, 1.5e-5));
  AlgaddEntry entry;
  entry.p = cotyp(1, 2, 0, 1);
  entry.ldest = 3;
  entry.offset = Lk::at(1, 2, -1);
  document.algadd.set_entry(0, 2, entry);
  document.algadd.set_entry(15, 255, entry);
  document.algadd.select(3, 5);
  document.ranges.table(31).range[0] = {Lk::filled(lowest_int), Lk::filled(highest_int)};
  document.ranges.table(0).range[1] = {Lk::at(1, 2, 3), Lk::at(4, 5, 6)};
  document.ranges.table(0).icoo_along_x_in_g = {2, 31};
  document.ranges.table(0).icoo_along_y_in_g2 = {4, 5};
  document.slice.set_xdim(31);
  document.slice.set_ydim(2);
  document.slice.set_offset(Lk::at(9, -8, 7));
  document.curve_states[0] = 1;
  document.curve_states[98] = 2;
  document.comment = "A plane walk.\r\n\r\n\tindented \"quoted\"\r\n";
}

}  // namespace kov
