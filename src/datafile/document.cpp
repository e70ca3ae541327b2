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

void Document::append_comment_line(std::string_view line) {
  const bool unfinished = !comment.empty() && comment.back() != '\n';
  // Made aside, so that a lack of memory leaves no half a line behind.
  std::string text(unfinished ? "\r\n" : "");
  text.append(line).append("\r\n");
  comment += text;
}

}  // namespace kov
