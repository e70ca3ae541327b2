#include "lattice/qt/lattices_tab.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>

#include "widgets/qt_text.h"
#include "widgets/string_grid.h"

namespace kov {

LatticesTab::LatticesTab(SldimGrid& Sldim, SlqGrid& Slq, Messages& messages, QWidget* parent)
    : QWidget(parent), Sldim_(new StringGrid(Sldim, messages)), Slq_(new StringGrid(Slq, messages)) {
  Sldim_->setObjectName("Sldim");
  Sldim_->setAccessibleName(tr("Definition of the slice"));
  Sldim_->set_dims_zeros(true);
  Sldim_->set_tool_tip([&Sldim](GridCell cell) { return to_qt(Sldim.hint(cell)); });
  Sldim_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  Sldim_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  Slq_->setObjectName("Slq");
  Slq_->setAccessibleName(tr("Quantities of the slice"));
  Slq_->set_dims_zeros(true);
  Slq_->set_tool_tip([&Slq](GridCell cell) { return to_qt(Slq.hint(cell)); });
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(Sldim_);
  layout->addWidget(Slq_, 1);
  setFocusProxy(Slq_);
  // The names become wider and narrower with the marks of the axes.
  Sldim_->verticalHeader()->installEventFilter(this);
  fit_Sldim();
}

bool LatticesTab::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Resize) fit_Sldim();
  return QWidget::eventFilter(object, event);
}

void LatticesTab::fit_Sldim() {
  // An offset has up to eleven characters, which the column's own width does not hold.
  const int offsets = std::max(Sldim_->columnWidth(0),
                               Sldim_->fontMetrics().horizontalAdvance(QStringLiteral("-2147483648 ")));
  Sldim_->horizontalHeader()->setStretchLastSection(true);
  Sldim_->setFixedWidth(Sldim_->verticalHeader()->width() + offsets +
                        Sldim_->verticalScrollBar()->sizeHint().width() + 2 * Sldim_->frameWidth());
}

}  // namespace kov
