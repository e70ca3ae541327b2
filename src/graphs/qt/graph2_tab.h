#pragma once

#include <array>
#include <functional>

#include "config/cphclass.h"
#include "graphs/graph2_page.h"
#include "graphs/qt/graph_tab.h"
#include "graphs/slg2a_grid.h"

class QAction;
class QButtonGroup;
class QGroupBox;

namespace kov {

class StringGrid;

/// The Graph2 page: ten radio buttons in two groups, the button that asks for ny, the image Gimage2 with the
/// map and its colour legend, and, for a stack of curves, the grid Slg2a below it.
class Graph2Tab final : public GraphTab {
 public:
  struct Models {
    Graph2Page& page;
    Slg2aGrid& Slg2a;
    const cphclass& cph;
    /// 0 ... 9.
    const int& radio_index;
  };
  /// A radio button was clicked.
  using Click = std::function<void(int index)>;

  /// What is passed in must outlive the page.
  Graph2Tab(const Models& models, Messages& messages, QAction& set_ny, const GraphServices& services,
            Click click, QWidget* parent = nullptr);
  ~Graph2Tab() override;

  void follow() override;

 private:
  QGroupBox* make_group(std::size_t range);

  Models models_;
  std::array<QGroupBox*, 2> groups_{};
  QButtonGroup* buttons_;
  StringGrid* Slg2a_;
};

}  // namespace kov
