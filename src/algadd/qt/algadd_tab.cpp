#include "algadd/qt/algadd_tab.h"

#include <QAction>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "widgets/action_button.h"
#include "widgets/qt_text.h"
#include "widgets/string_grid.h"

namespace kov {
namespace {

constexpr int buttons_in_a_row = 6;

}  // namespace

AlgaddTab::AlgaddTab(AlgaddGrid& SlAlgadd, Messages& messages, const QList<QAction*>& table_menu,
                     QWidget* parent)
    : QWidget(parent), SlAlgadd_(new StringGrid(SlAlgadd, messages)) {
  SlAlgadd_->setObjectName("SlAlgadd");
  SlAlgadd_->setAccessibleName(tr("Current Algadd table"));
  SlAlgadd_->set_dims_zeros(true);
  SlAlgadd_->set_fitted_row(AlgaddGrid::p_row);
  SlAlgadd_->set_tool_tip([&SlAlgadd](GridCell cell) { return to_qt(SlAlgadd.hint(cell)); });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(SlAlgadd_, 1);
  layout->addWidget(make_menu(table_menu));
  setFocusProxy(SlAlgadd_);
}

QWidget* AlgaddTab::make_menu(const QList<QAction*>& table_menu) {
  menu_ = new QGroupBox(tr("Algadd Table Menu"));
  menu_->setObjectName("AlgaddMenu");
  summary_ = new QLabel;
  summary_->setObjectName("AlgaddSummary");
  summary_->setTextFormat(Qt::PlainText);
  auto* layout = new QGridLayout(menu_);
  layout->addWidget(summary_, 0, 0, 1, buttons_in_a_row);
  for (int i = 0; i < table_menu.size(); ++i) {
    layout->addWidget(new ActionButton(*table_menu[i]), 1 + i / buttons_in_a_row, i % buttons_in_a_row);
  }
  menu_->hide();
  return menu_;
}

void AlgaddTab::show_menu(bool shown, const std::string& summary) {
  summary_->setText(to_qt(summary));
  menu_->setVisible(shown);
}

}  // namespace kov
