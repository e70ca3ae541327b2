#include "datafile/document.h"

namespace kov {

void Document::reset_data() {
  lmap.clear();
  inverted = false;
  algadd.reset();
  ranges.reset();
  ranges.choose(0);
  slice = SliceView{};
  slice.set_default(cph);
  curve_states.fill(0);
  comment.clear();
}

}  // namespace kov
