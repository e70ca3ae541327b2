#include "interact/progress.h"

#include <utility>

namespace kov {

void Progress::open(const std::string& title, std::int64_t from, std::int64_t to) {
  if (!is_open()) release_break();
  Box box{title, from, to, from, boxes_.size()};
  boxes_.reserve(boxes_.size() + 1);  // so that what was shown is also counted
  show_box(box);
  boxes_.push_back(std::move(box));
}

void Progress::at(std::int64_t position) {
  if (!is_open()) return;
  boxes_.back().position = position;
  show_box(boxes_.back());
}

void Progress::close() {
  if (!is_open()) return;
  boxes_.pop_back();
  if (is_open()) return show_box(boxes_.back());
  release_break();
  hide_box();
}

bool Progress::break_requested() {
  break_pressed_ = break_pressed_ || poll_break();
  return break_pressed_;
}

ProgressBox::~ProgressBox() {
  try {
    progress_.close();
  } catch (...) {  // the box counts as closed all the same
  }
}

GreyPanel::~GreyPanel() {
  try {
    progress_.show_grey(false);
  } catch (...) {  // the next one that ends gives the colour back
  }
}

}  // namespace kov
