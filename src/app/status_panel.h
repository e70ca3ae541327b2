#pragma once

#include <QStatusBar>
#include <QTimer>
#include <chrono>
#include <optional>
#include <string>

#include "lattice/lmap.h"
#include "widgets/window_user.h"

class QLabel;

namespace kov {

/// "0:07", "12:34", "1:02:03".
std::string clock_text(std::chrono::milliseconds time);
/// "0:07 elapsed, 0:12 remaining"; without the second part while nothing is known of it.
std::string time_text(const OperationTime& time);

/// The status bar: what an operation reports, its time, and the size of the store in figures.
class StatusPanel final : public QStatusBar {
 public:
  /// The store must outlive the panel.
  explicit StatusPanel(const Lmap& lmap, QWidget* parent = nullptr);

  /// What the operation that runs reports; the status line of the store is left out, since its figures are
  /// here anyway.
  void show_report(const std::string& report);
  /// While an operation runs, its report has the room of the store's figures, which change with every point.
  void show_time(const std::optional<OperationTime>& time);
  /// The figures of the store as it is now.
  void refresh();

 private:
  QLabel* add_figure(const char* name, const QString& tip);
  void show_real_memory();

  const Lmap& lmap_;
  QLabel* report_;
  QLabel* time_;
  QLabel* nlast_;
  QLabel* points_;
  QLabel* estimated_;
  QLabel* real_;
  QTimer clock_;
};

}  // namespace kov
