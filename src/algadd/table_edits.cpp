#include "algadd/table_edits.h"

#include <vector>

#include "algadd/overflow_check.h"

namespace kov {

namespace {

struct EntryRange {
  int first = 0;
  int last = Algadd_EntryCount - 1;
};

EntryRange selection(const Algadd& algadd) { return {algadd.selected_first(), algadd.selected_last()}; }

void set_p(Algadd& algadd, int i, const cotyp& p) {
  AlgaddEntry entry = algadd.entry(algadd.aanr(), i);
  entry.p = p;
  algadd.set_entry(algadd.aanr(), i, entry);
}

// All products first: one that is not finite must leave the whole table as it was.
template <class Wanted>
void multiply_p(Algadd& algadd, EntryRange range, const cotyp& c, const Wanted& wanted) {
  struct Product {
    int entry;
    cotyp p;
  };
  std::vector<Product> products;
  for (int i = range.first; i <= range.last; ++i) {
    const cotyp& p = algadd.entry(algadd.aanr(), i).p;
    if (is_zero(p) || !wanted(p)) continue;
    products.push_back({i, p * c});
    require_no_overflow(products.back().p);
  }
  for (const Product& product : products) set_p(algadd, product.entry, product.p);
}

bool any(const cotyp&) { return true; }

}  // namespace

void copy_current_table(Algadd& algadd, int to) {
  algadd.copy_table(algadd.aanr(), to);
  algadd.set_aanr(to);
}

void multiply_all_p(Algadd& algadd, const cotyp& c) { multiply_p(algadd, {}, c, any); }

void multiply_all_p_abs_not_1(Algadd& algadd, const cotyp& c) {
  multiply_p(algadd, {}, c, [](const cotyp& p) { return !(qq(p) == ratyp(1)); });
}

void multiply_selected_p(Algadd& algadd, const cotyp& c) { multiply_p(algadd, selection(algadd), c, any); }

void set_selected_p(Algadd& algadd, const cotyp& c) {
  require_finite(c);
  for (int i = algadd.selected_first(); i <= algadd.selected_last(); ++i) set_p(algadd, i, c);
}

void copy_entry(Algadd& algadd, int from, int to) {
  algadd.set_entry(algadd.aanr(), to, algadd.entry(algadd.aanr(), from));
}

void remove_entry(Algadd& algadd, int entry) {
  for (int i = entry; i + 1 < Algadd_EntryCount; ++i) copy_entry(algadd, i + 1, i);
  algadd.erase_entry(algadd.aanr(), Algadd_EntryCount - 1);
}

void insert_entry(Algadd& algadd, int entry) {
  for (int i = Algadd_EntryCount - 1; i > entry; --i) copy_entry(algadd, i - 1, i);
  algadd.erase_entry(algadd.aanr(), entry);
}

bool insert_entry_loses(const Algadd& algadd) {
  return !algadd.entry(algadd.aanr(), Algadd_EntryCount - 1).empty();
}

void remove_table(Algadd& algadd) {
  for (int t = algadd.aanr(); t + 1 < Algadd_TableCount; ++t) algadd.copy_table(t + 1, t);
  algadd.erase_table(Algadd_TableCount - 1);
}

void insert_table(Algadd& algadd) {
  for (int t = Algadd_TableCount - 1; t > algadd.aanr(); --t) algadd.copy_table(t - 1, t);
  algadd.erase_table(algadd.aanr());
}

bool insert_table_loses(const Algadd& algadd) { return !algadd.table_empty(Algadd_TableCount - 1); }

void renumber_entries(Algadd& algadd) { algadd.compact_table(algadd.aanr()); }

void renumber_tables(Algadd& algadd, const cphclass& cph) {
  apply_zero_entry_rule(algadd, cph);
  const int current = algadd.aanr();
  const bool current_empty = algadd.table_empty(current);
  int next = 0;
  for (int t = 0; t < Algadd_TableCount; ++t) {
    if (algadd.table_empty(t)) continue;
    if (t == current) algadd.set_aanr(next);
    algadd.swap_tables(t, next);
    ++next;
  }
  for (int t = next; t < Algadd_TableCount; ++t) algadd.erase_table(t);
  if (current_empty) algadd.set_aanr(next);
}

void apply_zero_entry_rule(Algadd& algadd, int table, const cphclass& cph) {
  if (cph.kmi("Algadd_del_p0_entries") != 0) algadd.compact_table(table);
}

void apply_zero_entry_rule(Algadd& algadd, const cphclass& cph) {
  for (int t = 0; t < Algadd_TableCount; ++t) apply_zero_entry_rule(algadd, t, cph);
}

}  // namespace kov
