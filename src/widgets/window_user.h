#pragma once

#include <QPointer>
#include <QWidget>
#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "interact/operation_time.h"
#include "interact/user.h"

namespace kov {

class ProgressGroup;

/// The person at a window: the three ports as message boxes, dialogs, and the progress group.
///
/// A long operation runs on the thread of the window and lets it react from time to time; nothing but the
/// Break button hears keys and mouse then, so nothing is entered twice. An operation that is over before
/// `appears_after` shows nothing at all.
class WindowUser final : public Messages, public Questions, public Progress {
 public:
  static constexpr std::chrono::milliseconds appears_after{50};
  static constexpr std::chrono::milliseconds interval{25};

  /// What the window does for the ports; what is not set is done without, but the beep and the caption,
  /// which then are the desktop's and the title of the window.
  struct Hooks {
    std::function<void(const std::string& text)> caption;
    /// An operation has become visible (true) or is over: menus and pages show themselves disabled.
    std::function<void(bool locked)> lock;
    /// For a status bar; nothing when the operation is over.
    std::function<void(const std::optional<OperationTime>&)> time;
    std::function<void()> beep;
  };

  WindowUser(QWidget& window, ProgressGroup& group);

  void set_hooks(Hooks hooks) { hooks_ = std::move(hooks); }
  User user() { return {*this, *this, *this}; }

  bool yes_no(const std::string& text) override;
  bool all_or_ok(const std::string& text) override;
  std::optional<std::string> input(const InputDialog& dialog, const Accept& accept) override;
  std::optional<std::filesystem::path> open_file(const std::string& title) override;
  std::optional<std::filesystem::path> save_file(const std::string& title,
                                                 const std::filesystem::path& preset) override;
  void breathe() override;
  void show_grey(bool grey) override;

 protected:
  void show(MessageKind kind, const std::string& text) override;
  void ring() override;
  void show_box(const Box& box) override;
  void hide_box() override;
  bool poll_break() override;
  void show_headline(const std::string& text) override;
  void show_caption(const std::string& text) override;

 private:
  using Clock = std::chrono::steady_clock;

  void start();
  void take_way(const Box& box);
  void appear();
  void show_state();
  void return_focus();
  OperationTime time() const;
  QWidget* parent_of_dialogs() const;

  QWidget& window_;
  ProgressGroup& group_;
  Hooks hooks_;
  bool running_ = false;
  bool visible_ = false;
  bool reacting_ = false;
  Clock::time_point started_;
  Clock::time_point next_turn_;
  /// The innermost box is what is shown; the time goes by the outermost that has a way to go.
  Box shown_;
  std::optional<Box> way_;
  QPointer<QWidget> focus_;
};

}  // namespace kov
