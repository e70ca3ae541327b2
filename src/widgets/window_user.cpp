#include "widgets/window_user.h"

#include <QApplication>
#include <algorithm>

#include "interact/scoped_flag.h"
#include "widgets/dialogs.h"
#include "widgets/input_lock.h"
#include "widgets/progress_group.h"
#include "widgets/qt_text.h"

namespace kov {
WindowUser::WindowUser(QWidget& window, ProgressGroup& group) : window_(window), group_(group) {}

bool WindowUser::yes_no(const std::string& text) { return ask_yes_no(parent_of_dialogs(), text); }

bool WindowUser::all_or_ok(const std::string& text) { return ask_all_or_ok(parent_of_dialogs(), text); }

std::optional<std::string> WindowUser::input(const InputDialog& dialog, const Accept& accept) {
  return ask_text(parent_of_dialogs(), dialog, accept, [this] { beep(); });
}

std::optional<std::filesystem::path> WindowUser::open_file(const std::string& title) {
  return choose_file_to_open(parent_of_dialogs(), title);
}

std::optional<std::filesystem::path> WindowUser::save_file(const std::string& title,
                                                           const std::filesystem::path& preset) {
  return choose_file_to_save(parent_of_dialogs(), title, preset);
}

void WindowUser::show(MessageKind kind, const std::string& text) {
  show_message(parent_of_dialogs(), kind, text);
}

void WindowUser::ring() {
  if (hooks_.beep) {
    hooks_.beep();
  } else {
    QApplication::beep();
  }
}

void WindowUser::show_headline(const std::string& text) { show_caption(text); }

void WindowUser::show_caption(const std::string& text) {
  if (hooks_.caption) {
    hooks_.caption(text);
  } else {
    window_.setWindowTitle(to_qt(text));
  }
}

void WindowUser::show_box(const Box& box) {
  if (!running_) start();
  shown_ = box;
  take_way(box);
  breathe();
}

/// A bar may be moved back, for a second pass; what was done stays done.
void WindowUser::take_way(const Box& box) {
  if (box.to <= box.from || (way_ && way_->depth < box.depth)) return;
  const bool goes_on = way_ && way_->depth == box.depth && way_->from == box.from && way_->to == box.to;
  const std::int64_t done = goes_on ? way_->position : box.from;
  way_ = box;
  way_->position = std::max(done, box.position);
}

void WindowUser::start() {
  running_ = true;
  way_.reset();
  started_ = Clock::now();
  next_turn_ = started_ + appears_after;
}

void WindowUser::show_grey(bool grey) { group_.show_grey(grey); }

void WindowUser::hide_box() {
  running_ = false;
  if (!visible_) return;
  visible_ = false;
  group_.stop();
  if (hooks_.lock) hooks_.lock(false);
  if (hooks_.time) hooks_.time(std::nullopt);
  return_focus();
}

/// What had it may be gone or hidden now, as the editor of a grid: then what it was in gets it.
void WindowUser::return_focus() {
  QWidget* widget = focus_;
  focus_ = nullptr;
  while (widget != nullptr && !widget->isVisible()) widget = widget->parentWidget();
  if (widget != nullptr) widget->setFocus();
}

bool WindowUser::poll_break() {
  breathe();
  return group_.take_break();
}

void WindowUser::breathe() {
  if (!running_ || reacting_ || Clock::now() < next_turn_) return;
  const ScopedFlag reacting(reacting_);
  if (!visible_) appear();
  show_state();
  {
    const InputLock lock(group_);
    QCoreApplication::processEvents();
  }
  next_turn_ = Clock::now() + interval;
}

void WindowUser::appear() {
  visible_ = true;
  focus_ = QApplication::focusWidget();
  if (hooks_.lock) hooks_.lock(true);
  group_.start();
}

void WindowUser::show_state() {
  group_.show_progress(to_qt(shown_.title), done_fraction(shown_.from, shown_.to, shown_.position));
  if (hooks_.time) hooks_.time(time());
}

OperationTime WindowUser::time() const {
  const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - started_);
  return operation_time(elapsed, way_ ? done_fraction(way_->from, way_->to, way_->position) : 0);
}

QWidget* WindowUser::parent_of_dialogs() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  return &window_;
}

}  // namespace kov
