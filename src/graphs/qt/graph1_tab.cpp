#include "graphs/qt/graph1_tab.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <memory>
#include <utility>

#include "graphs/curve_names.h"
#include "widgets/action_button.h"
#include "widgets/qt_text.h"

namespace kov {
namespace {

/// From left to right: real, imaginary, absolute, squared, count.
constexpr std::array<G1Quantity, g1_quantity_count> quantities = {g1_qre, g1_qim, g1_qa, g1_qq, g1_cntAt};

}  // namespace

Graph1Tab::Graph1Tab(Graph1Page& page, const G1Checks& checked, Messages& messages, QAction& oplot,
                     const GraphServices& services, Click click, QWidget* parent)
    : GraphTab("Gimage1", std::make_unique<ShownGraph1>(page), messages, services, parent),
      page_(page),
      checked_(checked),
      click_(std::move(click)) {
  image().setAccessibleName(tr("Sums along x"));
  auto* choices = new QHBoxLayout;
  for (std::size_t range = 0; range < g1_range_count; ++range) choices->addWidget(make_group(range));
  auto* label = new ActionButton(oplot);
  label->setObjectName("Label_g1_oplot");
  label->setFlat(true);
  label->setToolTip(tr("Two curves against each other, or along x"));
  choices->addWidget(label);
  choices->addStretch(1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(choices);
  layout->addWidget(&image(), 1);
  page_.set_changed([this, redrawn = services.redrawn] {
    follow();
    image().draw_soon();
    redrawn();
  });
  follow();
}

Graph1Tab::~Graph1Tab() { page_.set_changed({}); }

QGroupBox* Graph1Tab::make_group(std::size_t range) {
  auto* group = new QGroupBox;
  group->setObjectName(range == 0 ? "SR1Group" : "SR2Group");
  auto* layout = new QHBoxLayout(group);
  for (const G1Quantity quantity : quantities) {
    layout->addWidget(make_check_box(range * g1_quantity_count + quantity));
  }
  return groups_[range] = group;
}

QCheckBox* Graph1Tab::make_check_box(std::size_t index) {
  const std::string quantity = quantity_name(index % g1_quantity_count);
  const std::string name = (index < g1_quantity_count ? "CB0" : "CB1") + quantity;
  auto* box = new QCheckBox(to_qt(quantity));
  box->setObjectName(to_qt(name));
  connect(box, &QCheckBox::clicked, this, [this, name](bool checked) { click_(name, checked); });
  return boxes_[index] = box;
}

void Graph1Tab::follow() {
  GraphTab::follow();
  for (std::size_t range = 0; range < groups_.size(); ++range) {
    groups_[range]->setTitle(to_qt(page_.group_caption(range)));
  }
  for (std::size_t index = 0; index < boxes_.size(); ++index) boxes_[index]->setChecked(checked_[index]);
}

}  // namespace kov
