#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kov {

/// The port by which a long operation shows how far it is and learns that Break was pressed. Also
/// holds the caption of the main window, in which operations report.
///
/// Boxes nest, since an operation may run another one inside itself: every open has its close, the
/// innermost box is what is shown, and when it is closed the one around it is shown again as it was. Break,
/// once pressed, stays pressed until the outermost box is closed: a Break that meets the inner operation
/// also stops the outer one.
class Progress {
 public:
  virtual ~Progress() = default;

  /// Shows a progress box over from ... to, inside those that are open. The outermost one starts with
  /// Break unpressed. Opens nothing when it throws.
  void open(const std::string& title, std::int64_t from, std::int64_t to);
  /// Moves the bar of the innermost box; does nothing without one.
  void at(std::int64_t position);
  /// Closes the innermost box, whatever it throws; does nothing without one.
  void close();
  bool is_open() const { return !boxes_.empty(); }

  /// Turns a panel of the main window grey (128, 128, 128), or gives it its colour back; GreyPanel does so
  /// for a scope.
  virtual void show_grey(bool) {}

  /// One check of the Break button, counted: operations call it exactly where they may stop.
  bool break_requested();
  /// Lets a window paint and react, without asking for Break. Cheap; may be called every few
  /// thousand points.
  virtual void breathe() = 0;

  /// A report of a long operation in the caption.
  void headline(const std::string& text) {
    caption_ = text;
    show_headline(text);
  }
  /// Any other change of the caption.
  void set_caption(const std::string& text) {
    caption_ = text;
    show_caption(text);
  }
  const std::string& caption() const { return caption_; }

 protected:
  struct Box {
    std::string title;
    std::int64_t from = 0;
    std::int64_t to = 0;
    std::int64_t position = 0;
    /// How many boxes are around it; 0 for the outermost.
    std::size_t depth = 0;
  };

  /// A box was opened, is shown again, or has moved its bar.
  virtual void show_box(const Box& box) = 0;
  /// The outermost box was closed.
  virtual void hide_box() = 0;
  /// Whether Break was pressed since the last call; not called while it still counts as pressed.
  virtual bool poll_break() = 0;
  virtual void show_headline(const std::string& text) = 0;
  virtual void show_caption(const std::string& text) = 0;

  void release_break() { break_pressed_ = false; }

 private:
  std::vector<Box> boxes_;
  bool break_pressed_ = false;
  std::string caption_;
};

/// Keeps the progress box open for a scope and closes it on every way out.
class ProgressBox {
 public:
  static constexpr const char* default_title = " Progress";

  ProgressBox(Progress& progress, std::int64_t from, std::int64_t to,
              const std::string& title = default_title)
      : progress_(progress) {
    progress_.open(title, from, to);
  }
  /// Never throws: what keeps a display from being renewed (memory that ran out, say) must not end the
  /// program on the way out of an operation.
  ~ProgressBox();
  ProgressBox(const ProgressBox&) = delete;
  ProgressBox& operator=(const ProgressBox&) = delete;

  void at(std::int64_t position) { progress_.at(position); }

 private:
  Progress& progress_;
};

/// Keeps the panel grey for a scope: the sign of an operation that deletes points by their size.
class GreyPanel {
 public:
  explicit GreyPanel(Progress& progress) : progress_(progress) { progress_.show_grey(true); }
  /// Never throws, like the end of a box.
  ~GreyPanel();
  GreyPanel(const GreyPanel&) = delete;
  GreyPanel& operator=(const GreyPanel&) = delete;

 private:
  Progress& progress_;
};

}  // namespace kov
