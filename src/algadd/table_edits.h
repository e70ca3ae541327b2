#pragma once

#include "algadd/algadd.h"
#include "config/cphclass.h"

namespace kov {

// The commands of the table menu, once everything has been asked. Table indices are 0 ... 15 and entry
// numbers 0 ... 255; that is the dialogs' task. "Current" is the table aanr.
//
// Where a product is not finite the multiplications throw floating_overflow, and the table
// stays as it was. Empty entries are left alone: a factor of zero stays the template's exact zero.

/// Copies the current table to the table to, which becomes the current one.
void copy_current_table(Algadd& algadd, int to);

/// p = p * c in every entry of the current table.
void multiply_all_p(Algadd& algadd, const cotyp& c);
/// Likewise, but only where |p| is not 1: where the squared modulus does not equal 1 exactly.
void multiply_all_p_abs_not_1(Algadd& algadd, const cotyp& c);
/// Likewise in the selected entries.
void multiply_selected_p(Algadd& algadd, const cotyp& c);
/// p = c in the selected entries, empty ones included.
void set_selected_p(Algadd& algadd, const cotyp& c);

/// Copies an entry of the current table over another.
void copy_entry(Algadd& algadd, int from, int to);
/// The entries above move down by one, the last becomes empty.
void remove_entry(Algadd& algadd, int entry);
/// The entries from this one up move up by one, entry 255 is lost, and this one becomes empty.
void insert_entry(Algadd& algadd, int entry);
/// True when insert_entry would lose an entry.
bool insert_entry_loses(const Algadd& algadd);

/// The tables above the current one move down by one; table 15 becomes empty.
void remove_table(Algadd& algadd);
/// The tables from the current one up move up by one, table 15 is lost, and the current one is empty.
void insert_table(Algadd& algadd);
/// True when insert_table would lose a table.
bool insert_table_loses(const Algadd& algadd);

/// Closes the gaps of the current table, whatever the parameter says.
void renumber_entries(Algadd& algadd);
/// Applies the zero-entry rule to every table, then moves the tables that are not empty down in their
/// order. The current table stays current at its new index; an empty current one becomes the first
/// empty table.
void renumber_tables(Algadd& algadd, const cphclass& cph);

/// Closes the gaps of a table when Algadd_del_p0_entries says so: before every run.
void apply_zero_entry_rule(Algadd& algadd, int table, const cphclass& cph);
/// Likewise for all tables: after a data file has been read.
void apply_zero_entry_rule(Algadd& algadd, const cphclass& cph);

}  // namespace kov
