#include "graphs/qt/graph2_tab.h"

#include <QAction>
#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <memory>
#include <utility>

#include "widgets/action_button.h"
#include "widgets/qt_text.h"
#include "widgets/string_grid.h"

namespace kov {
namespace {

/// In the order of their indices, for each range.
constexpr std::array<const char*, 5> radio_names = {"re", "im", "qa", "qq", "cntAt"};

/// As high as its rows, which are few; what is left is the image's.
void fit_height(StringGrid& grid) {
  const int rows = grid.horizontalHeader()->height() + grid.verticalHeader()->length();
  grid.setFixedHeight(rows + grid.horizontalScrollBar()->sizeHint().height() + 2 * grid.frameWidth());
}

}  // namespace

Graph2Tab::Graph2Tab(const Models& models, Messages& messages, QAction& set_ny, const GraphServices& services,
                     Click click, QWidget* parent)
    : GraphTab("Gimage2", std::make_unique<ShownGraph2>(models.page), messages, services, parent),
      models_(models),
      buttons_(new QButtonGroup(this)),
      Slg2a_(new StringGrid(models.Slg2a, messages)) {
  image().setAccessibleName(tr("Map or curves along x and y"));
  Slg2a_->setObjectName("Slg2a");
  Slg2a_->setAccessibleName(tr("Curves that stand out"));
  Slg2a_->set_opens_on_double_click(false);
  auto* choices = new QHBoxLayout;
  for (std::size_t range = 0; range < groups_.size(); ++range) choices->addWidget(make_group(range));
  auto* button = new ActionButton(set_ny);
  button->setObjectName("Button_g2a_ny");
  choices->addWidget(button);
  choices->addStretch(1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(choices);
  layout->addWidget(&image(), 1);
  layout->addWidget(Slg2a_);
  connect(buttons_, &QButtonGroup::idClicked, this, std::move(click));
  const auto fit_grid = [this] { fit_height(*Slg2a_); };
  connect(Slg2a_->verticalHeader(), &QHeaderView::sectionResized, this, fit_grid);
  connect(Slg2a_->verticalHeader(), &QHeaderView::geometriesChanged, this, fit_grid);
  models_.page.set_changed([this, redrawn = services.redrawn] {
    follow();
    image().draw_soon();
    Slg2a_->refresh();
    redrawn();
  });
  follow();
}

Graph2Tab::~Graph2Tab() { models_.page.set_changed({}); }

QGroupBox* Graph2Tab::make_group(std::size_t range) {
  auto* group = new QGroupBox;
  group->setObjectName(range == 0 ? "Map1Group" : "Map2Group");
  auto* layout = new QHBoxLayout(group);
  for (std::size_t i = 0; i < radio_names.size(); ++i) {
    auto* button = new QRadioButton(radio_names[i]);
    button->setObjectName(QString("RB%1%2").arg(range).arg(radio_names[i]));
    buttons_->addButton(button, static_cast<int>(range * radio_names.size() + i));
    layout->addWidget(button);
  }
  return groups_[range] = group;
}

void Graph2Tab::follow() {
  GraphTab::follow();
  for (std::size_t range = 0; range < groups_.size(); ++range) {
    groups_[range]->setTitle(to_qt(models_.page.caption(range)));
  }
  buttons_->button(models_.radio_index)->setChecked(true);
  const bool stack = models_.cph.kmi("Graph2a_ny") != 0;
  Slg2a_->setVisible(stack);
  if (stack) fit_height(*Slg2a_);
}

}  // namespace kov
