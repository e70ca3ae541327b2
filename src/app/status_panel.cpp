#include "app/status_panel.h"

#include <QLabel>

#include "app/real_memory.h"
#include "lattice/lattice_status.h"
#include "text/grouping.h"
#include "text/integers.h"
#include "widgets/qt_text.h"

namespace kov {
namespace {

constexpr std::chrono::seconds memory_interval{1};
constexpr int figure_margin = 6;

std::string two_digits(std::int64_t value) { return (value < 10 ? "0" : "") + int_text(value); }

}  // namespace

std::string clock_text(std::chrono::milliseconds time) {
  const std::int64_t seconds = time.count() / 1000;
  const std::int64_t minutes = seconds / 60;
  const std::string rest = two_digits(seconds % 60);
  if (minutes < 60) return int_text(minutes) + ":" + rest;
  return int_text(minutes / 60) + ":" + two_digits(minutes % 60) + ":" + rest;
}

std::string time_text(const OperationTime& time) {
  std::string text = clock_text(time.elapsed) + " elapsed";
  if (time.remaining) text += ", " + clock_text(*time.remaining) + " remaining";
  return text;
}

StatusPanel::StatusPanel(const Lmap& lmap, QWidget* parent)
    : QStatusBar(parent), lmap_(lmap), report_(new QLabel) {
  report_->setObjectName("Report");
  report_->setTextFormat(Qt::PlainText);
  // A long report is cut here rather than the window made wider; the title has it in full.
  report_->setMinimumWidth(1);
  report_->setContentsMargins(figure_margin, 0, figure_margin, 0);
  addWidget(report_, 1);
  time_ = add_figure("Time", tr("Time of the operation that runs"));
  nlast_ = add_figure("Nlast", tr("The last row of the lattices"));
  points_ = add_figure("Points", tr("Stored points"));
  estimated_ = add_figure("EstimatedMemory", tr("Estimated memory of all points, which limits the runs"));
  real_ = add_figure("RealMemory", tr("Memory that the program occupies"));
  time_->hide();
  connect(&clock_, &QTimer::timeout, this, &StatusPanel::show_real_memory);
  clock_.start(memory_interval);
  refresh();
}

QLabel* StatusPanel::add_figure(const char* name, const QString& tip) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setToolTip(tip);
  label->setTextFormat(Qt::PlainText);
  label->setContentsMargins(figure_margin, 0, figure_margin, 0);
  addPermanentWidget(label);
  return label;
}

void StatusPanel::show_report(const std::string& report) {
  report_->setText(report == status_line(lmap_) ? QString() : to_qt(report));
}

void StatusPanel::show_time(const std::optional<OperationTime>& time) {
  time_->setVisible(time.has_value());
  for (QLabel* figure : {nlast_, points_, estimated_}) figure->setVisible(!time);
  if (time) time_->setText(to_qt(time_text(*time)));
}

void StatusPanel::refresh() {
  nlast_->setText(lmap_.empty() ? tr("no rows") : to_qt("nlast " + int_text(lmap_.nlast())));
  const auto count = static_cast<std::int64_t>(lmap_.count());
  points_->setText(to_qt(int_text(count) + (count == 1 ? " point" : " points")));
  estimated_->setText(to_qt("estimated " + kilobyte_text(lmap_.estimated_bytes()) + " KB"));
  show_real_memory();
}

void StatusPanel::show_real_memory() {
  const auto bytes = real_memory();
  real_->setVisible(bytes.has_value());
  if (bytes) real_->setText(to_qt("real " + kilobyte_text(*bytes) + " KB"));
}

}  // namespace kov
