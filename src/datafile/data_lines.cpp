#include "datafile/data_lines.h"

#include <array>
#include <cstdint>
#include <optional>

#include "text/integers.h"

namespace kov {

namespace {

constexpr int last_position = MaxDimCount - 1;

std::optional<std::int32_t> next_int(Tokens& fields) { return parse_int32(fields.next()); }

/// The next field when it is an integer within min ... max.
std::optional<std::int32_t> next_int_within(Tokens& fields, std::int32_t min, std::int32_t max) {
  const auto value = next_int(fields);
  return value && *value >= min && *value <= max ? value : std::nullopt;
}

/// Reads 32 integers in the listed order; gives the message for the first that is none, else empty.
std::string next_coordinates(Tokens& fields, Lk& key, std::string_view subject) {
  for (std::size_t row = 0; row < listed_positions.size(); ++row) {
    const auto value = next_int(fields);
    if (!value) {
      return std::string(subject) + " Error in coo[sl_icoo(" + int_text(static_cast<std::int64_t>(row)) +
             ")]";
    }
    key.coo[static_cast<std::size_t>(listed_positions[row])] = *value;
  }
  return {};
}

std::string ignore(const DataLine&) { return {}; }

std::string read_axes(const DataLine& line) {
  const std::string key(line.key);
  const auto xdim = next_int_within(line.fields, 0, last_position);
  if (!xdim) return key + ": xdim is no int";
  const auto ydim = next_int_within(line.fields, 0, last_position);
  if (!ydim || *ydim == *xdim) return key + ": ydim is no int";
  if (auto message = end_of_line_message(line.fields, key); !message.empty()) return message;
  line.document.slice.set_xdim(*xdim);
  line.document.slice.set_ydim(*ydim);
  return {};
}

std::string read_selection(const DataLine& line) {
  const std::string subject = "entry_aa_imm_selected_p";
  const auto min = next_int_within(line.fields, 0, Algadd_EntryCount - 1);
  if (!min) return subject + ": min no int";
  const auto max = next_int_within(line.fields, *min, Algadd_EntryCount - 1);
  if (!max) return subject + ": max no int";
  if (auto message = end_of_line_message(line.fields, subject); !message.empty()) return message;
  line.document.algadd.select(*min, *max);
  return {};
}

std::string read_curve_states(const DataLine& line) {
  const std::string key(line.key);
  CurveStates states{};
  for (std::size_t i = 0; i < states.size(); ++i) {
    const auto state = next_int_within(line.fields, 0, 2);
    if (!state) return key + " Error in iym[" + int_text(static_cast<std::int64_t>(i)) + "]";
    states[i] = static_cast<std::int8_t>(*state);
  }
  if (auto message = end_of_line_message(line.fields, key); !message.empty()) return message;
  line.document.curve_states = states;
  return {};
}

/// Which entry of which table a line is about; message is empty when both are within their limits.
struct EntryPlace {
  std::int32_t table = 0;
  std::int32_t entry = 0;
  std::string message;
};

EntryPlace next_entry_place(Tokens& fields, const std::string& subject) {
  const auto table = next_int(fields);
  if (!table) return {0, 0, subject + ": aanr_read no int"};
  if (*table < 0 || *table >= Algadd_TableCount) {
    return {
        0, 0,
        subject + ": aanr_read=" + int_text(*table) + " > Algadd_TableCount=" + int_text(Algadd_TableCount)};
  }
  const auto entry = next_int(fields);
  if (!entry) return {0, 0, subject + ": i_entry no int"};
  if (*entry < 0 || *entry >= Algadd_EntryCount) {
    return {0, 0,
            subject + ": i_entry_read=" + int_text(*entry) +
                " > Algadd_EntryCount=" + int_text(Algadd_EntryCount)};
  }
  return {*table, *entry, {}};
}

std::string read_algadd_entry(const DataLine& line) {
  const std::string subject = "entry_algadd";
  const EntryPlace place = next_entry_place(line.fields, subject);
  if (!place.message.empty()) return place.message;
  AlgaddEntry entry;
  if (!from_text(line.fields.next(), entry.p)) return subject + ": p no cotyp";
  const auto ldest = next_int(line.fields);
  if (!ldest) return subject + ": ldest no int";
  entry.ldest = *ldest;
  if (auto message = next_coordinates(line.fields, entry.offset, subject + ":"); !message.empty()) {
    return message;
  }
  if (auto message = end_of_line_message(line.fields, subject); !message.empty()) return message;
  line.document.algadd.set_entry(place.table, place.entry, entry);
  return {};
}

std::string read_lattice_offset(const DataLine& line) {
  Lk offset;
  if (auto message = next_coordinates(line.fields, offset, line.key); !message.empty()) return message;
  if (auto message = end_of_line_message(line.fields, line.key); !message.empty()) return message;
  line.document.slice.set_offset(offset);
  return {};
}

/// Reads the index of a range table; gives the message when it is none, else empty.
std::string next_range_table(const DataLine& line, int& table) {
  const auto index = next_int(line.fields);
  if (!index) return std::string(line.key) + ": ita_loc is no int";
  if (*index < 0 || *index >= RangeTables::TableCount)
    return std::string(line.key) + ": ita_loc out of range";
  table = *index;
  return {};
}

std::string read_range_axes(const DataLine& line) {
  int table = 0;
  if (auto message = next_range_table(line, table); !message.empty()) return message;
  constexpr std::array names = {"icoo_along_x_in_g[0]", "icoo_along_x_in_g[1]", "icoo_along_y_in_g2[0]",
                                "icoo_along_y_in_g2[1]"};
  std::array<std::int32_t, names.size()> axes{};
  for (std::size_t i = 0; i < names.size(); ++i) {
    const auto axis = next_int_within(line.fields, 0, last_position);
    if (!axis) return std::string(line.key) + ": ta[ita_loc]." + names[i] + " is no int";
    axes[i] = *axis;
  }
  if (auto message = end_of_line_message(line.fields, line.key); !message.empty()) return message;
  RangeTable& target = line.document.ranges.table(table);
  target.icoo_along_x_in_g = {axes[0], axes[1]};
  target.icoo_along_y_in_g2 = {axes[2], axes[3]};
  return {};
}

template <std::size_t range, Lk KeyBox::*bound>
std::string read_range_bound(const DataLine& line) {
  int table = 0;
  if (auto message = next_range_table(line, table); !message.empty()) return message;
  Lk values;
  if (auto message = next_coordinates(line.fields, values, line.key); !message.empty()) return message;
  if (auto message = end_of_line_message(line.fields, line.key); !message.empty()) return message;
  line.document.ranges.table(table).range[range].*bound = values;
  return {};
}

struct RuleOfKey {
  const std::string cphclass::*key;
  DataLineRule rule;
};

// clang-format off
constexpr std::array rules = {
    RuleOfKey{&cphclass::e_aa,                    read_algadd_entry},
    RuleOfKey{&cphclass::e_dt,                    ignore},
    RuleOfKey{&cphclass::e_xdim_ydim,             read_axes},
    RuleOfKey{&cphclass::e_aa_imm_p,              read_selection},
    RuleOfKey{&cphclass::e_g2at,                  read_curve_states},
    RuleOfKey{&cphclass::e_lkoffset,              read_lattice_offset},
    RuleOfKey{&cphclass::e_ix1g_ix2g_iy1g2_iy2g2, read_range_axes},
    RuleOfKey{&cphclass::e_sums1_range1min,       read_range_bound<0, &KeyBox::min>},
    RuleOfKey{&cphclass::e_sums1_range1max,       read_range_bound<0, &KeyBox::max>},
    RuleOfKey{&cphclass::e_sums1_range2min,       read_range_bound<1, &KeyBox::min>},
    RuleOfKey{&cphclass::e_sums1_range2max,       read_range_bound<1, &KeyBox::max>},
};
// clang-format on

}  // namespace

DataLineRule data_line_rule(std::string_view key, const cphclass& cph) {
  for (const RuleOfKey& row : rules) {
    if (cph.*row.key == key) return row.rule;
  }
  return nullptr;
}

std::string end_of_line_message(const Tokens& fields, std::string_view subject) {
  return fields.at_end() ? std::string() : std::string(subject) + ": end of line expected";
}

}  // namespace kov
