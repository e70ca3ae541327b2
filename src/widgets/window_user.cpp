#include "widgets/window_user.h"

#include <QApplication>
#include <algorithm>

#include "widgets/dialogs.h"
#include "widgets/input_lock.h"
#include "widgets/progress_group.h"
#include "widgets/qt_text.h"

namespace kov {
namespace {

/// The difference may be larger than 64 bits hold: the bounds are any integers.
double fraction_of(std::int64_t from, std::int64_t to, std::int64_t position) {
  const double length = static_cast<double>(to) - static_cast<double>(from);
  if (!(length > 0)) return 0;
  return std::clamp((static_cast<double>(position) - static_cast<double>(from)) / length, 0.0, 1.0);
}

}  // namespace

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
  if (!running_) start(box);
  shown_ = box;
  const bool is_outermost =
      box.title == outermost_.title && box.from == outermost_.from && box.to == outermost_.to;
  if (is_outermost) outermost_.position = std::max(outermost_.position, box.position);
  breathe();
}

void WindowUser::start(const Box& box) {
  running_ = true;
  outermost_ = box;
  started_ = Clock::now();
  next_turn_ = started_ + appears_after;
}

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
  reacting_ = true;
  if (!visible_) appear();
  show_state();
  {
    const InputLock lock(group_);
    QCoreApplication::processEvents();
  }
  reacting_ = false;
  next_turn_ = Clock::now() + interval;
}

void WindowUser::appear() {
  visible_ = true;
  focus_ = QApplication::focusWidget();
  if (hooks_.lock) hooks_.lock(true);
  group_.start();
}

void WindowUser::show_state() {
  group_.show_progress(to_qt(shown_.title), fraction_of(shown_.from, shown_.to, shown_.position));
  if (hooks_.time) hooks_.time(operation_time());
}

OperationTime WindowUser::operation_time() const {
  const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - started_);
  const double done = fraction_of(outermost_.from, outermost_.to, outermost_.position);
  if (!(done > 0)) return {elapsed, std::nullopt};
  const double left = static_cast<double>(elapsed.count()) * (1 - done) / done;
  // A pace that promises more than a year says nothing.
  constexpr double year = 365.0 * 24 * 3600 * 1000;
  if (left > year) return {elapsed, std::nullopt};
  return {elapsed, std::chrono::milliseconds(static_cast<std::int64_t>(left))};
}

QWidget* WindowUser::parent_of_dialogs() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  return &window_;
}

}  // namespace kov
