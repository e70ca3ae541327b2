#pragma once

#include <cstdint>
#include <string>

namespace kov {

/// The port by which a long operation shows how far it is and learns that Break was pressed. Also
/// holds the caption of the main window, in which operations report.
class Progress {
 public:
  virtual ~Progress() = default;

  /// Shows the progress box over from ... to. Opening an open box starts it anew, with Break unpressed.
  virtual void open(const std::string& title, std::int64_t from, std::int64_t to) = 0;
  virtual void at(std::int64_t position) = 0;
  virtual void close() = 0;

  /// One check of the Break button, counted: operations call it exactly where they may stop.
  virtual bool break_requested() = 0;
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
  virtual void show_headline(const std::string& text) = 0;
  virtual void show_caption(const std::string& text) = 0;

 private:
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
  ~ProgressBox() { progress_.close(); }
  ProgressBox(const ProgressBox&) = delete;
  ProgressBox& operator=(const ProgressBox&) = delete;

  void at(std::int64_t position) { progress_.at(position); }

 private:
  Progress& progress_;
};

}  // namespace kov
