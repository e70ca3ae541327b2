#pragma once

#include <QPalette>
#include <QString>
#include <QWidget>
#include <optional>

class QGroupBox;
class QProgressBar;
class QPushButton;

namespace kov {

/// The progress bar in its group box, and the Break button in one of its own that hides when the button is
/// pressed. Esc presses it, too, in whatever window of the program it is struck. Hidden as a whole while no
/// operation runs.
class ProgressGroup final : public QWidget {
  Q_OBJECT

 public:
  explicit ProgressGroup(QWidget* parent = nullptr);

  /// An operation begins: offers Break, not pressed yet.
  void start();
  /// fraction is 0 ... 1 of the way.
  void show_progress(const QString& title, double fraction);
  void stop();
  /// Turns it grey (128, 128, 128), or gives it the colour back that it had before.
  void show_grey(bool grey);
  /// Whether Break was pressed since the last call.
  bool take_break();

 private:
  void press_break();

  QGroupBox* progress_box_;
  QProgressBar* bar_;
  QGroupBox* break_box_;
  QPushButton* break_button_;
  bool pressed_ = false;
  /// While it is grey.
  std::optional<QPalette> own_palette_;
};

}  // namespace kov
