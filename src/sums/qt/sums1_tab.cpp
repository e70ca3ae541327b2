#include "sums/qt/sums1_tab.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "widgets/action_button.h"
#include "widgets/qt_text.h"
#include "widgets/string_grid.h"

namespace kov {
namespace {

constexpr int buttons_in_a_row = 2;
constexpr int label_margin = 16;

int width_of_columns(const StringGrid& grid) {
  return grid.verticalHeader()->width() + grid.horizontalHeader()->length() + 2 * grid.frameWidth();
}

int whole_width(const StringGrid& grid) {
  return width_of_columns(grid) + grid.verticalScrollBar()->sizeHint().width();
}

/// As wide as its columns, which are few and known; what is left is for the results.
void fit_width(StringGrid& grid) { grid.setFixedWidth(whole_width(grid)); }

}  // namespace

Sums1Tab::Sums1Tab(const Models& models, Messages& messages, const QList<QAction*>& range_menu,
                   QWidget* parent)
    : QWidget(parent),
      models_(models),
      Slds1_(new StringGrid(models.Slds1, messages)),
      Slsums1_(new StringGrid(models.Slsums1, messages)),
      label_(new QLabel) {
  Slds1_->setObjectName("Slds1");
  Slds1_->setAccessibleName(tr("Current range table"));
  Slds1_->set_opens_on_double_click(false);
  Slds1_->set_dims_zeros(true);
  Slds1_->set_tool_tip([this](GridCell) { return to_qt(models_.page.hint()); });
  Slsums1_->setObjectName("Slsums1");
  Slsums1_->setAccessibleName(tr("Sums of the ranges"));
  label_->setObjectName("Sums1Label");
  label_->setTextFormat(Qt::PlainText);
  label_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  label_->setMargin(label_margin);
  auto* right = new QVBoxLayout;
  right->addWidget(Slsums1_, 1);
  right->addWidget(make_menu(range_menu));
  right->addWidget(label_, 1);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(Slds1_);
  layout->addLayout(right, 1);
  setFocusProxy(Slds1_);
  connect(Slds1_->horizontalHeader(), &QHeaderView::sectionResized, this, [this] { fit_width(*Slds1_); });
  connect(Slds1_->horizontalHeader(), &QHeaderView::geometriesChanged, this, [this] { fit_width(*Slds1_); });
  follow();
}

void Sums1Tab::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  fit();
}

/// In a narrow window the bounds, most of which are short, give way to the sums.
void Sums1Tab::fit() {
  const QHeaderView& bounds = *Slds1_->horizontalHeader();
  const QMargins margins = layout()->contentsMargins();
  const int others = margins.left() + margins.right() + layout()->spacing() + whole_width(*Slds1_) -
                     bounds.length() + width_of_columns(*Slsums1_);
  const int usual = bounds.defaultSectionSize();
  const int wanted = std::clamp((width() - others) / bounds.count(), usual * 3 / 4, usual);
  if (wanted == bound_width_) return;
  bound_width_ = wanted;
  for (int column = 0; column < bounds.count(); ++column) Slds1_->setColumnWidth(column, wanted);
}

QWidget* Sums1Tab::make_menu(const QList<QAction*>& range_menu) {
  GroupBox_Modify_Range_ = new QGroupBox(tr("Modify Range Menu"));
  GroupBox_Modify_Range_->setObjectName("GroupBox_Modify_Range");
  auto* layout = new QGridLayout(GroupBox_Modify_Range_);
  for (std::size_t range = 0; range < check_boxes_.size(); ++range) {
    check_boxes_[range] = make_check_box(range);
    layout->addWidget(check_boxes_[range], 0, static_cast<int>(range));
  }
  for (int i = 0; i < range_menu.size(); ++i) {
    layout->addWidget(new ActionButton(*range_menu[i]), 1 + i / buttons_in_a_row, i % buttons_in_a_row);
  }
  return GroupBox_Modify_Range_;
}

QCheckBox* Sums1Tab::make_check_box(std::size_t range) {
  const QString number = QString::number(range + 1);
  auto* box = new QCheckBox("Destination = Range " + number);
  box->setObjectName("CB_Range" + number + "IsDest");
  connect(box, &QCheckBox::toggled, this, [this, range](bool on) { models_.destinations[range] = on; });
  return box;
}

void Sums1Tab::follow() {
  for (std::size_t range = 0; range < check_boxes_.size(); ++range) {
    check_boxes_[range]->setChecked(models_.destinations[range]);
  }
  GroupBox_Modify_Range_->setVisible(models_.page.menu_open());
  Slsums1_->setVisible(models_.page.results_shown());
  label_->setText(to_qt(models_.page.label()));
  label_->setVisible(!models_.page.results_shown());
  fit();
}

}  // namespace kov
