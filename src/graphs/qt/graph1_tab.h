#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "graphs/g1par.h"
#include "graphs/graph1_page.h"
#include "graphs/qt/graph_tab.h"

class QAction;
class QCheckBox;
class QGroupBox;

namespace kov {

/// The Graph1 page: ten check boxes in two groups, the label that switches to the drawing of two curves
/// against each other, and the image Gimage1.
class Graph1Tab final : public GraphTab {
 public:
  /// A check box of this name ("CB0qre") was clicked.
  using Click = std::function<void(const std::string& name, bool checked)>;

  /// What is passed in must outlive the page.
  Graph1Tab(Graph1Page& page, const G1Checks& checked, Messages& messages, QAction& oplot,
            const GraphServices& services, Click click, QWidget* parent = nullptr);
  ~Graph1Tab() override;

  void follow() override;

 private:
  QGroupBox* make_group(std::size_t range);
  QCheckBox* make_check_box(std::size_t index);

  Graph1Page& page_;
  const G1Checks& checked_;
  Click click_;
  std::array<QGroupBox*, g1_range_count> groups_{};
  /// By the curve's index in G1Checks.
  std::array<QCheckBox*, g1_curve_count> boxes_{};
};

}  // namespace kov
