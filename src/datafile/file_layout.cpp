#include "datafile/file_layout.h"

#include <algorithm>
#include <string_view>

#include "lattice/lattice_status.h"
#include "sums/range_table.h"

namespace kov {

namespace {

/// The 32 values as keys are listed, each followed by one blank.
void put_listed(TextBuffer& out, const Lk& key) {
  for (const int position : listed_positions) {
    out.put(key.coo[static_cast<std::size_t>(position)]);
    out.put(' ');
  }
}

/// A name with a line break in it must not begin a line of its own.
std::string on_one_line(std::string name) {
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return name;
}

void put_head(TextBuffer& out, const Document& document, const FileHead& head) {
  const cphclass& cph = document.cph;
  const std::size_t points = head.lattices == WithLattices::yes ? document.lmap.count() : 0;
  out.line(cph.e_dt, ' ', head.date_time, " = T.M.J h:m:s");
  out.line(";this file = ", on_one_line(head.file_name));
  out.line();
  out.line(";lattice_point_count sizeof_entry MaxDimCount :");
  out.line(cph.e_lpd, ' ', points, ' ', sizeof_entry, ' ', MaxDimCount);
}

void put_view(TextBuffer& out, const Document& document) {
  const cphclass& cph = document.cph;
  out.line(cph.e_xdim_ydim, ' ', document.slice.xdim(), ' ', document.slice.ydim());
  out.line(cph.e_aa_imm_p, ' ', document.algadd.selected_first(), ' ', document.algadd.selected_last());
  out.line();
  out.put(cph.e_g2at);
  out.put(' ');
  for (const std::int8_t state : document.curve_states) {
    out.put(state);
    out.put(' ');
  }
  out.line();
}

void put_comment(TextBuffer& out, std::string_view comment) {
  if (comment.empty()) return;
  constexpr std::string_view line_end = "\r\n";
  // The lines joined: the end of the last one does not count.
  const std::size_t length = comment.size() - (comment.ends_with(line_end) ? line_end.size() : 0);
  out.line();
  out.line(";the following lines contain the comment (Length=", length, ')');
  while (!comment.empty()) {
    // Also a lone LF ends a piece, since a reader would take it for a line's end.
    const std::size_t end = std::min(comment.find('\n'), comment.size());
    std::string_view piece = comment.substr(0, end);
    if (piece.ends_with('\r')) piece.remove_suffix(1);
    out.line('"', piece);
    comment.remove_prefix(std::min(end + 1, comment.size()));
  }
  out.line();
}

void put_configuration(TextBuffer& out, const Kmap& kmap) {
  out.line();
  out.line(";the following lines contain several program parameters");
  out.line(";in the order: keyword i min max ucfg");
  for (const auto& [keyword, parameter] : kmap) {
    out.line(keyword, ' ', parameter.i, ' ', parameter.min, ' ', parameter.max, ' ',
             parameter.ucfg ? '1' : '0');
  }
  out.line();
}

void put_entry(TextBuffer& out, const std::string& key, int table, int i, const AlgaddEntry& entry) {
  out.put(key);
  out.put(' ');
  out.put(table);
  out.put(' ');
  out.put(i);
  out.put(' ');
  out.put(to_text(entry.p));
  out.put(' ');
  out.put(entry.ldest);
  for (const int position : listed_positions) {
    out.put(' ');
    out.put(entry.offset.coo[static_cast<std::size_t>(position)]);
  }
  out.line();
}

int nonempty_count(const Algadd& algadd, int table) {
  int count = 0;
  for (int i = 0; i < Algadd_EntryCount; ++i) count += algadd.entry(table, i).empty() ? 0 : 1;
  return count;
}

void put_algadd(TextBuffer& out, const Document& document) {
  const Algadd& algadd = document.algadd;
  const std::string& key = document.cph.e_aa;
  const bool only_nonempty = document.cph.kmi("Algadd_del_p0_entries") != 0;
  for (int table = 0; table < Algadd_TableCount; ++table) {
    const int length = algadd.used_length(table);
    if (length == 0) continue;
    if (only_nonempty) {
      out.line(";the following ", nonempty_count(algadd, table),
               " lines contain all nonempty entries of Algadd[", table, ']');
    } else {
      out.line(";the following lines contain the first ", length, " entries of Algadd[", table, ']');
    }
    out.line(";in the order  ", key, ' ', table, " i_entry p ldest l ...");
    for (int i = 0; i < length; ++i) {
      const AlgaddEntry& entry = algadd.entry(table, i);
      if (!only_nonempty || !entry.empty()) put_entry(out, key, table, i, entry);
    }
    out.line();
  }
}

void put_offset(TextBuffer& out, const Document& document) {
  out.put(document.cph.e_lkoffset);
  out.put(' ');
  put_listed(out, document.slice.offset());
  out.line();
  out.line();
}

void put_bound(TextBuffer& out, const std::string& key, int index, const Lk& bound) {
  out.put(key);
  out.put(' ');
  out.put(index);
  out.put(' ');
  put_listed(out, bound);
  out.line();
}

void put_ranges(TextBuffer& out, const Document& document) {
  const cphclass& cph = document.cph;
  for (int index = 0; index < RangeTables::TableCount; ++index) {
    const RangeTable& table = document.ranges.table(index);
    if (table == RangeTable{}) continue;
    out.line(";Sums1: Range Table ", index, ':');
    out.line(cph.e_ix1g_ix2g_iy1g2_iy2g2, ' ', index, ' ', table.icoo_along_x_in_g[0], ' ',
             table.icoo_along_x_in_g[1], ' ', table.icoo_along_y_in_g2[0], ' ', table.icoo_along_y_in_g2[1]);
    put_bound(out, cph.e_sums1_range1min, index, table.range[0].min);
    put_bound(out, cph.e_sums1_range1max, index, table.range[0].max);
    put_bound(out, cph.e_sums1_range2min, index, table.range[1].min);
    put_bound(out, cph.e_sums1_range2max, index, table.range[1].max);
    out.line();
  }
}

bool put_lattices(TextBuffer& out, const Document& document, const AfterPoints& after_points) {
  // Writing is one thread's work, and takes about as long as making the lines: more threads would wait for
  // it.
  constexpr int most_threads = 4;
  const Lmap& lmap = document.lmap;
  out.line();
  out.line(";the following ", lmap.count(), " lines contain all non-zero quantities of the lattices");
  out.line(";in the table order: l, n=coo[0], coo[1] ... coo[", MaxDimCount - 2, "] quantity");
  WorkerPool workers(std::min(processor_threads(), most_threads));
  return put_points(out, document.cph.e_l, lmap, workers, after_points);
}

}  // namespace

bool put_data_file(TextBuffer& out, const Document& document, const FileHead& head,
                   const AfterPoints& after_points) {
  put_head(out, document, head);
  put_view(out, document);
  put_comment(out, document.comment);
  put_configuration(out, document.cph.kmap());
  put_algadd(out, document);
  put_offset(out, document);
  put_ranges(out, document);
  if (head.lattices == WithLattices::no) {
    out.line(";Lattice not saved");
    return true;
  }
  if (document.lmap.empty()) {
    out.line(';', lattices_are_empty);
    return true;
  }
  return put_lattices(out, document, after_points);
}

}  // namespace kov
