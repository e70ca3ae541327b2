#include "app/kovus1.h"

#include <QAction>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace kov {

// An algorithm of your own is called here. It is called between two events of the program, like every
// command: an edit of a cell is in the store already, an exception that it throws is shown and ends only the
// algorithm, and afterwards the caption and the pages show the store as the algorithm leaves it.
//
// It reaches
//   lmap   the points of all lattices: lmap.get(key), lmap.set(key, q), lmap.add(key, q), lmap.nlast(),
//          and from lmap.row_begin(n) on the points of a row (lattice/lmap.h);
//   cph    the program parameters: cph.kmi("Keyword") and cph.setkmi_1("Keyword", value);
//   wl     the warning level, 0 ... 4;
//   user   the person: user.messages tells, user.questions asks, user.progress shows how far it is and
//          knows whether Break was pressed (interact/user.h);
//   F1     the main window, with the tables and all else that a data file holds in F1.workbench().document.
//
// For example, to double the last row:
//
//   if (lmap.empty()) return;
//   Lmap row = lmap.extract_rows(lmap.nlast(), lmap.nlast());
//   row.transform([](const cotyp& q) { return q + q; });
//   lmap.merge_new(row);
//
// Parameter tables of the algorithm have their place on the page Algus1, instead of the label.

void TUF1::StartAlgus1Click() {
  user.messages.information("*** Here you can place code for your algorithm 1 ***");
}

// A second algorithm, in the same way.

void TUF1::StartAlgus2Click() {
  user.messages.information("*** Here you can place code for your algorithm 2 ***");
}

TUF1::TUF1(TF1& main_window)
    : PaCo(new QTabWidget(this)),
      ProposalLabel1(
          add_page("Algus1", "ProposalLabel1", "Here you can place Parameter tables for your algorithm. 1")),
      ProposalLabel2(
          add_page("Algus2", "ProposalLabel2", "Here you can place Parameter tables for your algorithm. 2")),
      F1(main_window),
      lmap(F1.workbench().document.lmap),
      cph(F1.workbench().document.cph),
      user(F1.user()),
      wl(user.messages) {
  setWindowTitle("UF1");
  PaCo->setObjectName("PaCo");
  setCentralWidget(PaCo);
  make_menu();
  resize(520, 320);
  connect(&F1, &TF1::user_algorithms_wanted, this, [this] {
    show();
    raise();
    activateWindow();
  });
  connect(&F1, &TF1::locked, this, [this](bool on) {
    menuBar()->setEnabled(!on);
    PaCo->setEnabled(!on);
  });
}

QLabel* TUF1::add_page(const char* name, const char* label_name, const char* text) {
  auto* page = new QWidget;
  page->setObjectName(name);
  auto* label = new QLabel(text);
  label->setObjectName(label_name);
  label->setAlignment(Qt::AlignCenter);
  label->setWordWrap(true);
  (new QVBoxLayout(page))->addWidget(label);
  PaCo->addTab(page, name);
  return label;
}

void TUF1::make_menu() {
  QMenu* menu = menuBar()->addMenu("&Cmd");
  add_item(*menu, "Start Algus1", [this] { F1.run_own("Algus1", [this] { StartAlgus1Click(); }); });
  add_item(*menu, "Start Algus2", [this] { F1.run_own("Algus2", [this] { StartAlgus2Click(); }); });
  menu->addSeparator();
  add_item(*menu, "Close", [this] { CloseUF1Click(); });
  add_item(*menu, "Exit", [this] { ExitPrgClick(); });
  auto* help = new QAction(this);
  help->setShortcut(Qt::Key_F1);
  connect(help, &QAction::triggered, this, [this] { F1.show_help_topic("own_algorithm"); });
  addAction(help);
}

void TUF1::add_item(QMenu& menu, const char* caption, const std::function<void()>& click) {
  QAction* item = menu.addAction(caption);
  item->setObjectName(QString("Cmd/") + caption);
  connect(item, &QAction::triggered, this, click);
}

void TUF1::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  FormShow();
}

/// The page control fills the window from its first moment on.
void TUF1::FormShow() { layout()->activate(); }

void TUF1::CloseUF1Click() { close(); }

void TUF1::ExitPrgClick() { F1.end_program(); }

}  // namespace kov
