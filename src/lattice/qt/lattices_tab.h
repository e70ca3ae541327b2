#pragma once

#include <QWidget>

#include "interact/messages.h"
#include "lattice/sldim_grid.h"
#include "lattice/slq_grid.h"

namespace kov {

class StringGrid;

/// The Lattices page: the definition of the slice at the left, as wide as it needs, and the slice itself in
/// all the space that is left.
class LatticesTab final : public QWidget {
 public:
  /// All must outlive the page.
  LatticesTab(SldimGrid& Sldim, SlqGrid& Slq, Messages& messages, QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void fit_Sldim();

  StringGrid* Sldim_;
  StringGrid* Slq_;
};

}  // namespace kov
