#include "lattice/slice_view.h"

#include <utility>

namespace kov {
namespace {

bool is_position(int position) noexcept { return 0 <= position && position < MaxDimCount; }

/// The one rule for both axes, so that they never name the same position.
bool take_axis(int& axis, int& other, int position) noexcept {
  if (!is_position(position)) return false;
  if (position == other) {
    std::swap(axis, other);
  } else {
    axis = position;
  }
  return true;
}

int position_or(int position, int fallback) noexcept { return is_position(position) ? position : fallback; }

}  // namespace

bool SliceView::set_xdim(int position) noexcept { return take_axis(xdim_, ydim_, position); }

bool SliceView::set_ydim(int position) noexcept { return take_axis(ydim_, xdim_, position); }

const Lk& SliceView::reference_key() noexcept {
  static constexpr Lk all_zeros;
  return all_zeros;
}

void SliceView::set_default(const cphclass& cph) {
  xdim_ = position_or(cph.kmi("Slq_xdim_default"), first_xdim);
  ydim_ = position_or(cph.kmi("Slq_ydim_default"), first_ydim);
  if (ydim_ == xdim_) ydim_ = xdim_ == 0 ? 1 : 0;
  offset_ = reference_key();
  set_offset(xdim_, cph.kmi("Slq_xoffset_default"));
  set_offset(ydim_, cph.kmi("Slq_yoffset_default"));
}

}  // namespace kov
