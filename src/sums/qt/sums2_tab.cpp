#include "sums/qt/sums2_tab.h"

#include <QLabel>
#include <QVBoxLayout>

#include "widgets/qt_text.h"
#include "widgets/string_grid.h"

namespace kov {

Sums2Tab::Sums2Tab(Sums2Grid& Slsums2, Messages& messages, QWidget* parent)
    : QWidget(parent), model_(Slsums2), Slsums2_(new StringGrid(Slsums2, messages)), label_(new QLabel) {
  Slsums2_->setObjectName("Slsums2");
  Slsums2_->setAccessibleName(tr("Sums of every lattice"));
  label_->setObjectName("Sums2Label");
  label_->setTextFormat(Qt::PlainText);
  label_->setAlignment(Qt::AlignCenter);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(Slsums2_, 1);
  layout->addWidget(label_, 1);
  setFocusProxy(Slsums2_);
  follow();
}

void Sums2Tab::follow() {
  label_->setText(to_qt(model_.sums2().label()));
  Slsums2_->setVisible(model_.sums2().created());
  label_->setVisible(!model_.sums2().created());
}

}  // namespace kov
