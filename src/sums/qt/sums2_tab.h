#pragma once

#include <QWidget>

#include "interact/messages.h"
#include "sums/sums2_grid.h"

class QLabel;

namespace kov {

class StringGrid;

/// The Sums2 page: the sums of every lattice, or in their place the label that says why there are none.
class Sums2Tab final : public QWidget {
 public:
  /// Both must outlive the page.
  Sums2Tab(Sums2Grid& Slsums2, Messages& messages, QWidget* parent = nullptr);

  /// Shows grid or label as the last creation left them.
  void follow();

 private:
  const Sums2Grid& model_;
  StringGrid* Slsums2_;
  QLabel* label_;
};

}  // namespace kov
