#include "algadd/table_summary.h"

#include "text/integers.h"

namespace kov {

std::string table_summary(const Algadd& algadd) {
  int filled = 0;
  int highest = 0;
  for (int t = 0; t < Algadd_TableCount; ++t) {
    if (algadd.table_empty(t)) continue;
    ++filled;
    highest = t;
  }
  const auto empty_in = [](int empty, int last) {
    return int_text(empty) + " empty in 0.." + int_text(last);
  };
  return " Table " + int_text(algadd.aanr()) + "   ( " + empty_in(highest + 1 - filled, highest) + " ,    " +
         empty_in(Algadd_TableCount - filled, Algadd_TableCount - 1) + " ) ";
}

}  // namespace kov
