#include "datafile/line_reader.h"

#include "datafile/data_lines.h"
#include "datafile/point_line.h"

namespace kov {

namespace {

constexpr char comment_quote = '"';

}  // namespace

LineReader::LineReader(Document& document, std::int32_t nelast, bool file_chosen)
    : document_(document),
      nelast_(nelast),
      file_chosen_(file_chosen),
      point_key_(document.cph.e_l),
      points_(document.lmap) {}

std::string LineReader::read_line(std::string_view line, LineResult& result) {
  result = LineResult::other;
  if (nelast_ != configuration_only && line.starts_with(point_key_)) {
    Lk key;
    cotyp quantity;
    if (scan_written_point(line.substr(point_key_.size()), key, quantity)) {
      return take_point(key, quantity, result);
    }
  }
  if (line.empty() || line.front() == document_.cph.comment_character) return {};
  const bool whole_file = nelast_ != configuration_only;
  if (line.front() == comment_quote) {
    if (whole_file) document_.append_comment_line(line.substr(1));
    return {};
  }
  Tokens fields(line);
  const std::string_view key = fields.next();
  if (whole_file) return read_whole_file_line(key, fields, result);
  if (key == document_.cph.e_l) {
    result = LineResult::stop;
    return {};
  }
  return document_.cph.read_configuration_line(key, fields, !file_chosen_);
}

std::string LineReader::read_whole_file_line(std::string_view key, Tokens& fields, LineResult& result) {
  if (key == document_.cph.e_l) return read_point(fields, result);
  if (key == document_.cph.e_lpd) return read_announcement(fields);
  if (const DataLineRule rule = data_line_rule(key, document_.cph)) return rule({document_, key, fields});
  return document_.cph.read_configuration_line(key, fields, true);
}

std::string LineReader::read_announcement(Tokens& fields) {
  const std::string& key = document_.cph.e_lpd;
  const auto points = parse_int32(fields.next());
  if (!points) return key + ": lsiz_of_infile is no int";
  if (!parse_int32(fields.next())) return key + ": lpsiz is no int";
  const auto dimensions = parse_int32(fields.next());
  if (!dimensions) return key + ": mdim is no int";
  if (*dimensions != MaxDimCount) {
    return key + " mdim = " + int_text(*dimensions) + " != " + int_text(MaxDimCount) + " = MaxDimCount";
  }
  if (auto message = end_of_line_message(fields, key); !message.empty()) return message;
  announced_points_ = *points;
  return {};
}

std::string LineReader::read_point(Tokens& fields, LineResult& result) {
  const PointFields point = scan_point_fields(fields.rest());
  if (point.count != point_field_count) {
    return "entry_lattice: sscanf = " + int_text(point.count) + " instead of " + int_text(point_field_count);
  }
  cotyp quantity;
  if (!from_text(point.quantity, quantity)) return "entry_lattice: Error in cotyp quantity";
  if (auto message = end_of_line_message(Tokens(point.rest), "entry_lattice"); !message.empty()) {
    return message;
  }
  if (is_zero(quantity)) return "entry_lattice: NullQuantity input is redundant";
  return take_point(point.key, quantity, result);
}

std::string LineReader::take_point(const Lk& key, const cotyp& quantity, LineResult& result) {
  // No stored point lies beyond nelast, so such a point cannot meet an occupied place.
  if (key.n() > nelast_) {
    result = LineResult::stop;
    return {};
  }
  if (!points_.insert(key, quantity)) return "entry_lattice: coordinate already occupied";
  result = LineResult::point;
  return {};
}

}  // namespace kov
