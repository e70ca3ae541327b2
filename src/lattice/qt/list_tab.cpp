#include "lattice/qt/list_tab.h"

#include <QApplication>
#include <QEvent>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>

#include "widgets/string_grid.h"

namespace kov {
namespace {

/// What a wheel tells for one notch, in eighths of a degree.
constexpr int notch = 120;

}  // namespace

ListTab::ListTab(SllistGrid& Sllist, Messages& messages, QWidget* parent)
    : QWidget(parent), model_(Sllist), Sllist_(new StringGrid(Sllist, messages)) {
  Sllist_->setObjectName("Sllist");
  Sllist_->setAccessibleName(tr("Points of all lattices"));
  Sllist_->set_dims_zeros(true);
  Sllist_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  Sllist_->viewport()->installEventFilter(this);
  connect(Sllist_, &StringGrid::rows_in_view_changed, this, [this] { fit_rows(); });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(Sllist_);
  setFocusProxy(Sllist_);
}

/// Not while a long operation has locked the page: the store may be half-way then.
void ListTab::fit_rows() {
  if (isEnabled()) model_.set_visible_rows(std::max(Sllist_->rows_in_view(), 1));
}

void ListTab::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::EnabledChange) fit_rows();
}

bool ListTab::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::Wheel) return QWidget::eventFilter(object, event);
  const auto& wheel = static_cast<QWheelEvent&>(*event);
  if (std::abs(wheel.angleDelta().x()) > std::abs(wheel.angleDelta().y())) return false;
  scroll(wheel.angleDelta().y());
  return true;
}

void ListTab::scroll(int wheel_delta) {
  turned_ += wheel_delta * QApplication::wheelScrollLines();
  const GridKey key{turned_ > 0 ? GridKey::Name::up : GridKey::Name::down};
  for (; std::abs(turned_) >= notch; turned_ -= turned_ > 0 ? notch : -notch) model_.key(key);
}

}  // namespace kov
