#include "app/kovu1.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFile>
#include <QFrame>
#include <QMenuBar>
#include <QMimeData>
#include <QTabWidget>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

#include "app/chosen_file.h"
#include "app/command_actions.h"
#include "app/help_file.h"
#include "app/main_menu.h"
#include "app/recent_files.h"
#include "app/status_panel.h"
#include "interact/error_text.h"
#include "interact/scoped_flag.h"
#include "lattice/lattice_status.h"
#include "sums/qt/sums2_tab.h"
#include "widgets/help_window.h"
#include "widgets/progress_group.h"
#include "widgets/qt_text.h"
#include "workbench/start_up.h"

namespace kov {
namespace {

/// Topics of the help, in the order of the pages.
constexpr std::array<const char*, 9> page_topics = {"lattices", "list",   "comment", "algadd", "sums1",
                                                    "sums2",    "graph1", "graph2",  "config"};

/// The one file that is dragged; empty for anything else.
std::filesystem::path dragged_file(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return {};
  return QFile::encodeName(urls.front().toLocalFile()).toStdString();
}

}  // namespace

TF1::TF1(std::span<const std::filesystem::path> arguments)
    : progress_group_(new ProgressGroup),
      user_(*this, *progress_group_),
      workbench_(user_, facts_of(WindowPlace::initial(available_screens()))),
      pages_(workbench_, user_.user()),
      place_(*this, workbench_.document.cph, workbench_.window),
      actions_(new CommandActions(
          workbench_,
          {[this](const Command& command) { run(command); }, [this] { return pages_.edit_under_way(); }},
          this)),
      status_(new StatusPanel(workbench_.document.lmap)),
      PaCo_(new QTabWidget),
      progress_panel_(make_progress_panel()) {
  setAcceptDrops(true);
  setStatusBar(status_);
  make_ports();
  make_pages();
  make_menu();
  start_up(workbench_, user_.user(), arguments);
  made_ = true;
  after_operation();
  focus_page();
}

TF1::~TF1() {
  // The pages still hold grids of pages_, and what these tell would meet a window that is half gone.
  made_ = false;
  pages_.set_changed({});
  pages_.set_about_to_redisplay({});
  delete takeCentralWidget();
}

/// Lies over the pages, whose layout stays as it is: an operation must not make them list or draw anew.
QFrame* TF1::make_progress_panel() {
  auto* panel = new QFrame(this);
  panel->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
  panel->setAutoFillBackground(true);
  (new QVBoxLayout(panel))->addWidget(progress_group_);
  panel->hide();
  return panel;
}

void TF1::make_ports() {
  WindowUser::Hooks hooks;
  hooks.caption = [this](const std::string&) { show_title(); };
  hooks.lock = [this](bool on) { lock(on); };
  hooks.time = [this](const std::optional<OperationTime>& time) { show_time(time); };
  user_.set_hooks(std::move(hooks));
  pages_.set_changed([this] { follow(); });
  pages_.set_about_to_redisplay([this] { return fit_graph(); });
}

QAction* TF1::own_action(const char* name, const char* caption, const std::function<void()>& triggered) {
  auto* action = new QAction(tr(caption), this);
  action->setObjectName(name);
  connect(action, &QAction::triggered, this, triggered);
  return action;
}

void TF1::make_menu() {
  WindowItems own;
  recent_files_ = new RecentFiles([this](const std::filesystem::path& path) { open_later(path); }, this);
  own.recent_files = recent_files_;
  own.help_contents = own_action("Help/Contents", "Contents", [this] {
    show_help_topic(page_topics[static_cast<std::size_t>(workbench_.active_page)]);
  });
  own.help_contents->setShortcut(Qt::Key_F1);
  own.help_index = own_action("Help/Index", "Index", [this] { help().show_index(); });
  own.help_search = own_action("Help/Search", "Search", [this] { help().show_search(); });
  own.menu_opens = [this] { operate("Edit", [] {}); };
  own.user_algorithms = own_action("Bar/US", "U&S", [this] { emit user_algorithms_wanted(); });
  build_main_menu(*menuBar(), *actions_, own);
}

HelpWindow& TF1::help() {
  if (!help_) help_ = std::make_unique<HelpWindow>(QFile::decodeName(help_file().c_str()));
  return *help_;
}

void TF1::show_help_topic(const QString& topic) { help().show_topic(topic); }

/// The error of an edit redisplays nothing: that would give up what was typed.
bool TF1::take_edits() {
  try {
    pages_.leave_grids();
    return true;
  } catch (...) {
    user_.error(text_of_handled_error());
    return false;
  }
}

void TF1::operate(const std::string& name, const std::function<void()>& operation) {
  if (running_ || locked_) return;
  {
    const ScopedFlag running(running_);
    if (take_edits()) run_operation(name, operation, workbench_, user_.user());
  }
  after_operation();
}

void TF1::run(const Command& command) {
  operate(item_name(command.caption), [&] {
    if (!is_enabled(command, workbench_)) return user_.beep();
    command.run(workbench_, user_.user());
  });
  if (command.menu == "Algadd" || command.menu == "Sums1") focus_page();
}

/// Where nothing is reported and the status is the same, the caption stays: it may be that of the start. The
/// page is shown anew in any case, since quantities may be others all the same.
void TF1::run_own(const std::string& name, const std::function<void()>& operation) {
  operate(name, [&] {
    const std::string caption = user_.caption();
    const std::string status = status_line(workbench_.document.lmap);
    operation();
    const bool to_report = user_.caption() != caption || status_line(workbench_.document.lmap) != status;
    if (to_report) workbench_.restore_status_line(user_);
    pages_.refresh();
  });
}

void TF1::open_file(const std::filesystem::path& path) {
  ChosenFile chosen(user_, path);
  const Command& open = *find_command("File", "Open");
  operate(item_name(open.caption), [&] { open.run(workbench_, {user_, chosen, user_}); });
}

/// What is dropped or chosen is opened when the drag, or the menu, is over.
void TF1::open_later(const std::filesystem::path& path) {
  QTimer::singleShot(0, this, [this, path] { open_file(path); });
}

void TF1::after_operation() {
  if (workbench_.exit_requested) return end_program();
  if (workbench_.file.chosen) recent_files_->add(workbench_.file.path);
  follow();
}

void TF1::end_program() {
  workbench_.exit_requested = true;
  for (QWidget* window : QApplication::topLevelWidgets()) window->hide();
  QCoreApplication::exit(0);
}

void TF1::lock(bool on) {
  locked_ = on;
  menuBar()->setEnabled(!on);
  PaCo_->setEnabled(!on);
  progress_panel_->setVisible(on);
  emit locked(on);
  if (on) {
    sums2_tab_->follow();  // which may be what is being built
  } else {
    follow();
  }
}

void TF1::place_progress_panel() {
  const QSize size(PaCo_->width() * 3 / 5, progress_panel_->sizeHint().height());
  QRect place(QPoint(0, 0), size);
  place.moveCenter(PaCo_->geometry().center());
  progress_panel_->setGeometry(place);
  progress_panel_->raise();
}

/// The first time of an operation is told when its box has its size.
void TF1::show_time(const std::optional<OperationTime>& time) {
  if (time) place_progress_panel();
  status_->show_time(time);
}

void TF1::show_title() {
  const std::string& caption = user_.caption();
  std::string title = caption;
  if (workbench_.file.chosen) {
    title += " - " + workbench_.file.name() + " - " + program_base_name;
  } else if (!caption.starts_with(program_base_name)) {
    title += std::string(" - ") + program_base_name;
  }
  setWindowTitle(to_qt(title));
  status_->show_report(report());
}

/// What an operation has reported is in the past when its box is closed: the caption keeps it until something
/// else stands there, the status bar does not.
std::string TF1::report() const {
  const bool is_current = user_.is_open() || user_.caption().starts_with(program_base_name);
  return is_current ? user_.caption() : std::string();
}

void TF1::closeEvent(QCloseEvent* event) {
  event->accept();
  end_program();
}

void TF1::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  record_place();
  if (locked_) place_progress_panel();
}

void TF1::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  record_place();
}

void TF1::record_place() {
  if (!made_) return;
  place_.record();
  const bool shows_parameters = workbench_.active_page == static_cast<int>(Page::config);
  if (shows_parameters && !pages_.config().edited()) pages_.config().show();
}

void TF1::dragEnterEvent(QDragEnterEvent* event) {
  if (!dragged_file(*event->mimeData()).empty()) event->acceptProposedAction();
}

void TF1::dropEvent(QDropEvent* event) {
  const std::filesystem::path path = dragged_file(*event->mimeData());
  if (path.empty()) return;
  event->acceptProposedAction();
  open_later(path);
}

}  // namespace kov
