#pragma once

#include <QWidget>

#include "interact/messages.h"
#include "lattice/list_grid.h"

namespace kov {

class StringGrid;

/// The List page: as many points as fit, without a scroll bar for rows, since the listing itself scrolls;
/// the mouse wheel does what Up and Down do.
class ListTab final : public QWidget {
 public:
  /// Both must outlive the page.
  ListTab(SllistGrid& Sllist, Messages& messages, QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void fit_rows();
  void scroll(int wheel_delta);

  SllistGrid& model_;
  StringGrid* Sllist_;
  /// What the wheel has turned and is less than a point yet.
  int turned_ = 0;
};

}  // namespace kov
