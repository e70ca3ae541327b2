#include "sums/range_edits.h"

#include "sums/bound_text.h"

namespace kov {
namespace {

bool out_of_order(Bound bound, std::int32_t value, std::int32_t partner) {
  return bound == Bound::min ? value > partner : value < partner;
}

BoundPlace partner_of(BoundPlace place) {
  place.bound = place.bound == Bound::min ? Bound::max : Bound::min;
  return place;
}

}  // namespace

void set_axis(RangeTable& table, std::size_t range, Axis axis, std::int32_t position) {
  std::int32_t& x = table.icoo_along_x_in_g[range];
  std::int32_t& y = table.icoo_along_y_in_g2[range];
  std::int32_t& chosen = axis == Axis::x ? x : y;
  std::int32_t& other = axis == Axis::x ? y : x;
  if (chosen == position) return;
  if (other == position) other = chosen;
  chosen = position;
}

void set_axis_of_both(RangeTable& table, Axis axis, std::int32_t position) {
  set_axis(table, 0, axis, position);
  set_axis(table, 1, axis, position);
}

std::int32_t& bound_at(RangeTable& table, const BoundPlace& place) {
  KeyBox& range = table.range[place.range];
  return (place.bound == Bound::min ? range.min : range.max).coo[place.position];
}

std::int32_t bound_at(const RangeTable& table, const BoundPlace& place) {
  const KeyBox& range = table.range[place.range];
  return (place.bound == Bound::min ? range.min : range.max).coo[place.position];
}

BoundEdit type_bound(RangeTable& table, const BoundPlace& place, std::int32_t value) {
  const BoundPlace partner = partner_of(place);
  const bool exchanged = out_of_order(place.bound, value, bound_at(table, partner));
  const BoundPlace target = exchanged ? partner : place;
  bound_at(table, target) = value;
  return {.cursor = target, .stored = true, .beep = exchanged};
}

BoundEdit type_bound(RangeTable& table, const BoundPlace& place, std::string_view text) {
  const std::optional<std::int32_t> value = parse_bound(text);
  if (!value) return {.cursor = place, .stored = false, .beep = true};
  return type_bound(table, place, *value);
}

BoundEdit increase_bound(RangeTable& table, const BoundPlace& place) {
  const std::int32_t bound = bound_at(table, place);
  if (bound == highest_int) return {.cursor = place, .stored = false, .beep = true};
  return type_bound(table, place, bound + 1);
}

BoundEdit decrease_bound(RangeTable& table, const BoundPlace& place) {
  const std::int32_t bound = bound_at(table, place);
  if (bound == lowest_int) return {.cursor = place, .stored = false, .beep = true};
  return type_bound(table, place, bound - 1);
}

}  // namespace kov
