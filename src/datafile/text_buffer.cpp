#include "datafile/text_buffer.h"

#include <utility>

namespace kov {

TextBuffer::TextBuffer(Drain drain)
    : drain_(std::move(drain)), buffer_(std::make_unique_for_overwrite<char[]>(block_size)) {}

void TextBuffer::put(std::string_view text) {
  if (text.size() > room()) flush();
  if (text.size() > block_size) return pass_on(text);
  text.copy(buffer_.get() + used_, text.size());
  used_ += text.size();
}

void TextBuffer::flush() {
  if (used_ != 0) drain_({buffer_.get(), used_});
  used_ = 0;
}

}  // namespace kov
