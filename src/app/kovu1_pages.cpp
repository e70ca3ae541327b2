// The pages of the main window, and how they follow the workbench.
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>
#include <ctime>

#include "algadd/qt/algadd_tab.h"
#include "app/command_actions.h"
#include "app/kovu1.h"
#include "app/status_panel.h"
#include "config/qt/config_tab.h"
#include "datafile/qt/comment_tab.h"
#include "graphs/qt/graph1_tab.h"
#include "graphs/qt/graph2_tab.h"
#include "interact/scoped_flag.h"
#include "lattice/qt/lattices_tab.h"
#include "lattice/qt/list_tab.h"
#include "sums/qt/sums1_tab.h"
#include "sums/qt/sums2_tab.h"
#include "widgets/string_grid.h"
#include "workbench/check_boxes.h"
#include "workbench/page_picture.h"

namespace kov {

void TF1::make_pages() {
  PaCo_->setObjectName("PaCo");
  PaCo_->setDocumentMode(true);
  PaCo_->tabBar()->setFocusPolicy(Qt::TabFocus);
  setCentralWidget(PaCo_);
  add_page(new LatticesTab(pages_.sldim(), pages_.slq(), user_), "Lattices");
  PaCo_->setTabToolTip(0, lattices_page_hint);
  add_page(new ListTab(pages_.sllist(), user_), "List");
  add_page(comment_tab_ = new CommentTab(workbench_.document.comment), "Comment");
  add_page(algadd_tab_ = new AlgaddTab(pages_.algadd(), user_, actions_->of_menu("Algadd")), "Algadd");
  const Sums1Tab::Models sums1{pages_.slds1(), pages_.slsums1(), workbench_.sums1,
                               workbench_.range_is_destination};
  add_page(sums1_tab_ = new Sums1Tab(sums1, user_, actions_->of_menu("Sums1")), "Sums1");
  add_page(sums2_tab_ = new Sums2Tab(pages_.slsums2(), user_), "Sums2");
  make_graph_pages();
  add_page(new ConfigTab(pages_.config(), user_), "Config");
  // A file that is dropped on the editor of a cell is the window's, too.
  for (QLineEdit* editor : PaCo_->findChildren<QLineEdit*>()) editor->setAcceptDrops(false);
  for (const StringGrid* grid : PaCo_->findChildren<StringGrid*>()) {
    connect(grid, &StringGrid::edit_under_way_changed, actions_, &CommandActions::refresh);
  }
  connect(PaCo_, &QTabWidget::currentChanged, this, &TF1::choose_page);
}

void TF1::make_graph_pages() {
  const auto click_box = [this](const std::string& name, bool on) { set_check_box(workbench_, name, on); };
  add_page(graph_tabs_[0] =
               new Graph1Tab(pages_.graph1(), workbench_.graph1_checked, user_,
                             *actions_->of_menu("Graph1").front(), graph_services(Page::graph1), click_box),
           "Graph1");
  const Graph2Tab::Models graph2{pages_.graph2(), pages_.slg2a(), workbench_.document.cph,
                                 workbench_.graph2_radio_index};
  const auto click_radio = [this](int index) { pages_.choose_graph2_radio(index); };
  add_page(graph_tabs_[1] = new Graph2Tab(graph2, user_, *actions_->of_menu("Graph2").front(),
                                          graph_services(Page::graph2), click_radio),
           "Graph2");
}

GraphServices TF1::graph_services(Page page) {
  const char* name = page == Page::graph1 ? "Graph1" : "Graph2";
  return {.run = [this](const std::string& item,
                        const std::function<void()>& operation) { operate(item, operation); },
          .notes = [this, page] { return picture_notes(workbench_, page, std::time(nullptr)); },
          .file_name =
              [this, name] {
                std::string stem = workbench_.file.chosen ? workbench_.file.path.stem().string() + "-" : "";
                // What stands behind a point would be taken for an extension.
                std::ranges::replace(stem, '.', '_');
                return stem + name;
              },
          .redrawn = [this] { workbench_.restore_status_line(user_); }};
}

GraphTab* TF1::active_graph() const {
  if (workbench_.active_page == static_cast<int>(Page::graph1)) return graph_tabs_[0];
  if (workbench_.active_page == static_cast<int>(Page::graph2)) return graph_tabs_[1];
  return nullptr;
}

/// Before the window is shown nothing has its size. A graph that is the first page to be seen is calculated
/// then, for that size and once.
bool TF1::fit_graph() {
  GraphTab* const tab = active_graph();
  if (tab == nullptr) return true;
  if (!made_) return false;
  if (isVisible()) tab->fit(PaCo_->currentWidget()->size());
  return true;
}

void TF1::add_page(QWidget* page, const char* name) {
  page->setObjectName(QString(name) + "Page");
  PaCo_->addTab(page, name);
}

void TF1::choose_page(int index) {
  if (!made_ || following_ || index < 0 || index == workbench_.active_page) return;
  pages_.show(static_cast<Page>(index));
  // Who goes through the tabs by keys goes on there; for the mouse, keys are the page's from now on.
  if (!PaCo_->tabBar()->hasFocus()) focus_page();
}

void TF1::focus_page() { PaCo_->currentWidget()->setFocus(); }

void TF1::follow() {
  if (!made_ || following_) return;
  if (!running_) place_.follow_parameters();  // those that an operation sets, when it is over
  const ScopedFlag following(following_);
  if (PaCo_->currentIndex() != workbench_.active_page) {
    PaCo_->setCurrentIndex(workbench_.active_page);
    focus_page();
  }
  comment_tab_->follow();
  algadd_tab_->show_menu(workbench_.algadd_menu_open, pages_.label(Page::algadd));
  sums1_tab_->follow();
  sums2_tab_->follow();
  for (GraphTab* tab : graph_tabs_) tab->follow();
  actions_->refresh();
  status_->refresh();
  show_title();
}

}  // namespace kov
