#include "widgets/progress_group.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "interact/progress.h"

namespace kov {
namespace {

constexpr int bar_steps = 1000;

QGroupBox* box_around(QWidget* content, QWidget* parent) {
  auto* box = new QGroupBox(parent);
  auto* layout = new QHBoxLayout(box);
  layout->addWidget(content);
  return box;
}

}  // namespace

ProgressGroup::ProgressGroup(QWidget* parent)
    : QWidget(parent), bar_(new QProgressBar), break_button_(new QPushButton(QStringLiteral("Break"))) {
  progress_box_ = box_around(bar_, this);
  break_box_ = box_around(break_button_, this);
  progress_box_->setObjectName(QStringLiteral("ProgressBox"));
  break_box_->setObjectName(QStringLiteral("BreakBox"));
  // The first title must not change the height: who places the group asks for it in the same moment.
  progress_box_->setTitle(QLatin1String(ProgressBox::default_title));
  bar_->setRange(0, bar_steps);
  break_button_->setToolTip(QStringLiteral("Stops the operation (Esc)"));
  // A key that is still held down from before the operation must not press it.
  break_button_->setFocusPolicy(Qt::NoFocus);
  // The bar keeps its place when Break is pressed.
  QSizePolicy policy = break_box_->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  break_box_->setSizePolicy(policy);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(progress_box_, 1);
  layout->addWidget(break_box_);
  connect(break_button_, &QPushButton::clicked, this, &ProgressGroup::press_break);
  // Not the button's own shortcut: that one clicks 100 ms later, maybe in the next operation.
  auto* escape = new QShortcut(Qt::Key_Escape, this);
  escape->setContext(Qt::ApplicationShortcut);
  escape->setAutoRepeat(false);  // likewise: held down, it would end one operation after another
  connect(escape, &QShortcut::activated, this, &ProgressGroup::press_break);
  hide();
}

void ProgressGroup::start() {
  pressed_ = false;
  bar_->setValue(0);
  break_box_->show();
  show();
}

void ProgressGroup::show_progress(const QString& title, double fraction) {
  progress_box_->setTitle(title);
  bar_->setValue(static_cast<int>(std::clamp(fraction, 0.0, 1.0) * bar_steps));
}

void ProgressGroup::stop() {
  pressed_ = false;
  hide();
}

void ProgressGroup::show_grey(bool grey) {
  if (grey == own_palette_.has_value()) return;
  QPalette colours = palette();
  if (grey) {
    own_palette_ = colours;
    colours.setColor(QPalette::Window, QColor(128, 128, 128));
  } else {
    colours = *own_palette_;
    own_palette_.reset();
  }
  setAutoFillBackground(grey);
  setPalette(colours);
}

bool ProgressGroup::take_break() { return std::exchange(pressed_, false); }

void ProgressGroup::press_break() {
  pressed_ = true;
  break_box_->hide();
}

}  // namespace kov
