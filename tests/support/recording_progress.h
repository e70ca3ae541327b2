#pragma once

#include <functional>
#include <string>
#include <vector>

#include "interact/progress.h"
#include "text/integers.h"

namespace kov {

/// Keeps what a long operation shows and asks as lines of text, in order, for tests of what happens
/// when: "box  Progress 0..3 at 2", "headline TEXT", "caption TEXT", "break?", "hidden".
class RecordingProgress final : public Progress {
 public:
  std::vector<std::string> calls;
  /// Break is pressed at this check, counted from 1; 0: never.
  int break_at = 0;
  /// Called at every headline, to fail there.
  std::function<void()> on_headline = [] {};

  void breathe() override {}

 protected:
  void show_box(const Box& box) override {
    calls.push_back("box " + box.title + " " + int_text(box.from) + ".." + int_text(box.to) + " at " +
                    int_text(box.position));
  }
  void hide_box() override { calls.emplace_back("hidden"); }
  bool poll_break() override {
    calls.emplace_back("break?");
    return ++checks_ == break_at;
  }
  void show_headline(const std::string& text) override {
    calls.push_back("headline " + text);
    on_headline();
  }
  void show_caption(const std::string& text) override { calls.push_back("caption " + text); }

 private:
  int checks_ = 0;
};

}  // namespace kov
