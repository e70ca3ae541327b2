#pragma once

#include <QMainWindow>
#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "app/window_place.h"
#include "interact/user.h"
#include "widgets/window_user.h"
#include "workbench/command.h"
#include "workbench/pages.h"
#include "workbench/workbench.h"

class QAction;
class QFrame;
class QTabWidget;

namespace kov {

class AlgaddTab;
class CommandActions;
class CommentTab;
class GraphTab;
struct GraphServices;
class HelpWindow;
class ProgressGroup;
class RecentFiles;
class StatusPanel;
class Sums1Tab;
class Sums2Tab;

/// The main window: the pages, the main menu, the progress box, and the one Workbench that they show.
class TF1 final : public QMainWindow {
  Q_OBJECT

 public:
  /// Starts the program up: when the window has been made, the file that the one argument names has been
  /// read.
  explicit TF1(std::span<const std::filesystem::path> arguments);
  ~TF1() override;

  Workbench& workbench() { return workbench_; }
  Pages& pages() { return pages_; }
  User user() { return user_.user(); }

  /// Takes edits under way, and then runs the command, or beeps where it is not enabled.
  void run(const Command& command);
  /// Runs an operation that is no command of the table as commands are run: edits under way are taken
  /// first, errors are shown, and afterwards the window shows what the operation has left.
  void run_own(const std::string& name, const std::function<void()>& operation);
  /// Like "&Open", without the dialog.
  void open_file(const std::filesystem::path& path);
  /// What File's "Exit" does: the program ends at once.
  void end_program();
  void show_help_topic(const QString& topic);

 signals:
  /// The menu bar's "US".
  void user_algorithms_wanted();
  /// A long operation has begun to let the windows react (true), or is over.
  void locked(bool on);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  QFrame* make_progress_panel();
  void make_ports();
  void make_pages();
  void make_graph_pages();
  void add_page(QWidget* page, const char* name);
  void make_menu();
  QAction* own_action(const char* name, const char* caption, const std::function<void()>& triggered);
  void place_progress_panel();
  void show_time(const std::optional<OperationTime>& time);

  /// Runs an operation unless one is under way: edits under way are taken first, what escapes is shown, and
  /// the window follows.
  void operate(const std::string& name, const std::function<void()>& operation);
  GraphServices graph_services(Page page);
  /// The graph page that is shown; null while any other is.
  GraphTab* active_graph() const;
  bool fit_graph();
  /// False, with the error shown and the text still in its cell: an edit under way could not be stored.
  bool take_edits();
  void choose_page(int index);
  void lock(bool on);
  /// Everything around the grids shows what the workbench holds now.
  void follow();
  void after_operation();
  void focus_page();
  void record_place();
  void show_title();
  std::string report() const;
  void open_later(const std::filesystem::path& path);
  HelpWindow& help();

  ProgressGroup* progress_group_;
  WindowUser user_;
  Workbench workbench_;
  Pages pages_;
  WindowPlace place_;
  CommandActions* actions_;
  StatusPanel* status_;
  RecentFiles* recent_files_ = nullptr;
  QTabWidget* PaCo_;
  QFrame* progress_panel_;
  CommentTab* comment_tab_ = nullptr;
  AlgaddTab* algadd_tab_ = nullptr;
  Sums1Tab* sums1_tab_ = nullptr;
  Sums2Tab* sums2_tab_ = nullptr;
  std::array<GraphTab*, 2> graph_tabs_{};
  std::unique_ptr<HelpWindow> help_;
  /// Nothing is shown before the window has been made.
  bool made_ = false;
  bool following_ = false;
  bool locked_ = false;
  /// An operation is under way: another one has to wait for a person to start it anew.
  bool running_ = false;
};

}  // namespace kov
