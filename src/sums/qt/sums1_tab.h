#pragma once

#include <QList>
#include <QWidget>
#include <array>

#include "interact/messages.h"
#include "sums/range_grid.h"
#include "sums/range_menu.h"
#include "sums/sums1_grid.h"
#include "sums/sums1_page.h"

class QAction;
class QCheckBox;
class QGroupBox;
class QLabel;

namespace kov {

class StringGrid;

/// The Sums1 page: the range table at the left; at the right the results, or in their place the Modify Range
/// menu and the label that stands behind the results.
class Sums1Tab final : public QWidget {
 public:
  struct Models {
    RangeGrid& Slds1;
    Sums1Grid& Slsums1;
    const Sums1Page& page;
    RangeDestinations& destinations;
  };

  /// A button for each command of the Modify Range menu. All must outlive the page.
  Sums1Tab(const Models& models, Messages& messages, const QList<QAction*>& range_menu,
           QWidget* parent = nullptr);

  /// Shows menu, results and label as the page has them now.
  void follow();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fit();
  QWidget* make_menu(const QList<QAction*>& range_menu);
  QCheckBox* make_check_box(std::size_t range);

  Models models_;
  StringGrid* Slds1_;
  StringGrid* Slsums1_;
  QGroupBox* GroupBox_Modify_Range_ = nullptr;
  std::array<QCheckBox*, 2> check_boxes_{};
  QLabel* label_;
  /// As the columns of the range table were last fitted; a person may have changed some since.
  int bound_width_ = 0;
};

}  // namespace kov
