#include "widgets/help_window.h"

#include <QAction>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QKeyEvent>
#include <QLabel>
#include <QSplitter>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>

namespace kov {
namespace {

QUrl page_of(const QString& topic) { return QUrl(help_address + topic + ".html"); }

QVBoxLayout* column_of(QWidget* widget) {
  auto* const layout = new QVBoxLayout(widget);
  layout->setContentsMargins(4, 4, 4, 4);
  return layout;
}

}  // namespace

HelpWindow::HelpWindow(const QString& help_file, QWidget* parent)
    : QWidget(parent, Qt::Window), collection_(help_file) {
  setWindowTitle("Help");
  resize(1000, 700);
  if (collection_.error().isEmpty()) {
    show_views();
  } else {
    show_error(collection_.error());
  }
}

// It may be indexing in a thread of its own, from the collection that goes next.
HelpWindow::~HelpWindow() { delete search_; }

void HelpWindow::show_error(const QString& text) {
  auto* const label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setMargin(16);
  label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  column_of(this)->addWidget(label);
}

void HelpWindow::show_views() {
  auto* const splitter = new QSplitter;
  views_ = new QTabWidget;
  splitter->addWidget(views_);
  splitter->addWidget(reading_side());
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({300, 700});
  column_of(this)->addWidget(splitter);
  views_->addTab(contents_view(), "&Contents");
  views_->addTab(index_view(), "&Index");
  views_->addTab(search_view(), "&Search");
  open_page(page_of("overview"));
}

QWidget* HelpWindow::reading_side() {
  browser_ = new HelpBrowser(collection_.engine());
  connect(browser_, &QTextBrowser::sourceChanged, this, &HelpWindow::select_in_contents);
  auto* const tools = new QToolBar;
  const auto add = [&](QStyle::StandardPixmap icon, const char* text, const QKeySequence& keys,
                       void (QTextBrowser::*step)()) {
    QAction* const action = tools->addAction(style()->standardIcon(icon), text, browser_, step);
    action->setShortcut(keys);
    action->setToolTip(QString("%1 (%2)").arg(text, keys.toString(QKeySequence::NativeText)));
    action->setEnabled(false);
    return action;
  };
  QAction* const back = add(QStyle::SP_ArrowBack, "Back", Qt::ALT | Qt::Key_Left, &QTextBrowser::backward);
  QAction* const forward =
      add(QStyle::SP_ArrowForward, "Forward", Qt::ALT | Qt::Key_Right, &QTextBrowser::forward);
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  auto* const side = new QWidget;
  QVBoxLayout* const layout = column_of(side);
  layout->addWidget(tools);
  layout->addWidget(browser_);
  return side;
}

QWidget* HelpWindow::contents_view() {
  QHelpContentWidget* const contents = collection_.engine().contentWidget();
  connect(contents, &QHelpContentWidget::linkActivated, this, &HelpWindow::open_page);
  connect(contents, &QHelpContentWidget::clicked, this, [this](const QModelIndex& index) {
    if (const QHelpContentItem* const item = collection_.engine().contentModel()->contentItemAt(index))
      open_page(item->url());
  });
  connect(collection_.engine().contentModel(), &QHelpContentModel::contentsCreated, this,
          [this] { select_in_contents(browser_->source()); });
  collection_.engine().contentModel()->createContents("");
  return contents;
}

QWidget* HelpWindow::index_view() {
  QHelpIndexWidget* const index = collection_.engine().indexWidget();
  collection_.engine().indexModel()->createIndex("");
  connect(index, &QHelpIndexWidget::documentActivated, this,
          [this](const QHelpLink& link) { open_page(link.url); });
  index_filter_ = new QLineEdit;
  index_filter_->setPlaceholderText("Look for a command, grid, parameter or key");
  index_filter_->setClearButtonEnabled(true);
  connect(index_filter_, &QLineEdit::textChanged, index,
          [index](const QString& text) { index->filterIndices(text); });
  connect(index_filter_, &QLineEdit::returnPressed, index, &QHelpIndexWidget::activateCurrentItem);
  index_ = new QWidget;
  QVBoxLayout* const layout = column_of(index_);
  layout->addWidget(index_filter_);
  layout->addWidget(index);
  return index_;
}

QWidget* HelpWindow::search_view() {
  words_ = new QLineEdit;
  words_->setPlaceholderText("Words to be found, then Enter");
  words_->setClearButtonEnabled(true);
  found_count_ = new QLabel;
  found_ = new QListWidget;
  search_page_ = new QWidget;
  QVBoxLayout* const layout = column_of(search_page_);
  layout->addWidget(words_);
  layout->addWidget(found_count_);
  layout->addWidget(found_);
  connect_search();
  return search_page_;
}

void HelpWindow::connect_search() {
  search_ = new QHelpSearchEngine(&collection_.engine(), this);
  connect(words_, &QLineEdit::returnPressed, search_, [this] { search_->search(words_->text()); });
  connect(search_, &QHelpSearchEngine::searchingFinished, this, &HelpWindow::list_found);
  // Who searches at once after the installation waits for the index of words and need not ask again.
  connect(search_, &QHelpSearchEngine::indexingFinished, this, [this] {
    if (!words_->text().isEmpty()) search_->search(words_->text());
  });
  connect(found_, &QListWidget::itemClicked, this, &HelpWindow::open_found);
  connect(found_, &QListWidget::itemActivated, this, &HelpWindow::open_found);
  if (collection_.renewed()) {
    search_->reindexDocumentation();
  } else {
    search_->scheduleIndexDocumentation();
  }
}

void HelpWindow::list_found(int count) {
  found_->clear();
  for (const QHelpSearchResult& result : search_->searchResults(0, count)) {
    auto* const item = new QListWidgetItem(result.title(), found_);
    item->setData(Qt::UserRole, result.url());
  }
  found_count_->setText(count == 0 ? "No page has these words."
                                   : QString::number(count) + (count == 1 ? " page" : " pages"));
}

void HelpWindow::open_found(const QListWidgetItem* found) { open_page(found->data(Qt::UserRole).toUrl()); }

/// The page that is read, however it was reached.
void HelpWindow::select_in_contents(const QUrl& page) {
  QHelpContentWidget* const contents = collection_.engine().contentWidget();
  const QModelIndex entry = contents->indexOf(page);
  if (entry.isValid()) contents->setCurrentIndex(entry);
}

void HelpWindow::show_contents() { present(collection_.engine().contentWidget(), nullptr); }
void HelpWindow::show_index() { present(index_, index_filter_); }
void HelpWindow::show_search() { present(search_page_, words_); }

void HelpWindow::show_topic(const QString& name) {
  if (browser_ != nullptr) {
    const QUrl page = page_of(name);
    open_page(collection_.engine().fileData(page).isEmpty() ? page_of("overview") : page);
  }
  show_contents();
}

void HelpWindow::present(QWidget* view, QWidget* focus) {
  show();
  raise();
  activateWindow();
  if (views_ == nullptr) return;
  views_->setCurrentWidget(view);
  (focus == nullptr ? view : focus)->setFocus();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace kov
