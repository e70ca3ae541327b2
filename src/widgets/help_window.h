#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>
#include <QWidget>

#include "widgets/help_browser.h"
#include "widgets/help_collection.h"

class QHelpSearchEngine;
class QLabel;

namespace kov {

/// The help: contents, index and search beside the page that is read. A window of its own, which stays open
/// beside the others. When the help file cannot be read it says why, and every call just shows that.
class HelpWindow final : public QWidget {
  Q_OBJECT

 public:
  explicit HelpWindow(const QString& help_file, QWidget* parent = nullptr);
  ~HelpWindow() override;

  // Each brings the window to the front.

  void show_contents();
  void show_index();
  void show_search();
  /// The page of a topic ("lattices", "sums1", "alg_menu": the names of the pages' files), with the contents
  /// beside it; the overview when there is no such page.
  void show_topic(const QString& name);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void show_views();
  void show_error(const QString& text);
  QWidget* reading_side();
  QWidget* contents_view();
  QWidget* index_view();
  QWidget* search_view();
  void connect_search();

  void open_page(const QUrl& url) { browser_->setSource(url); }
  void open_found(const QListWidgetItem* found);
  void select_in_contents(const QUrl& page);
  void list_found(int count);
  void present(QWidget* view, QWidget* focus);

  HelpCollection collection_;
  QHelpSearchEngine* search_ = nullptr;
  HelpBrowser* browser_ = nullptr;
  QTabWidget* views_ = nullptr;
  QWidget* index_ = nullptr;
  QWidget* search_page_ = nullptr;
  QLineEdit* index_filter_ = nullptr;
  QLineEdit* words_ = nullptr;
  QListWidget* found_ = nullptr;
  QLabel* found_count_ = nullptr;
};

}  // namespace kov
