#include "widgets/string_grid.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTimer>
#include <string>

#include "interact/error_text.h"
#include "interact/scoped_flag.h"
#include "widgets/cell_editor.h"
#include "widgets/cell_painter.h"
#include "widgets/grid_adapter.h"
#include "widgets/grid_headings.h"
#include "widgets/qt_text.h"

namespace kov {
namespace {

class CallScope {
 public:
  explicit CallScope(int& calls) : calls_(calls) { ++calls_; }
  ~CallScope() { --calls_; }
  CallScope(const CallScope&) = delete;
  CallScope& operator=(const CallScope&) = delete;

 private:
  int& calls_;
};

/// What a call throws, as a text; empty when it does not.
std::string error_of(const std::function<void()>& call) {
  try {
    call();
    return {};
  } catch (...) {
    return text_of_handled_error();
  }
}

}  // namespace

StringGrid::StringGrid(GridModel& model, Messages& messages, QWidget* parent)
    : QTableView(parent), model_(model), messages_(messages), adapter_(new GridAdapter(model, this)) {
  setModel(adapter_);
  setItemDelegate(new CellDelegate(*this, messages));
  set_up_table();
  set_up_editor();
  set_up_headings();
  model_.set_changed([this] { refresh(); });
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { focus_moved(now); });
  follow();
}

StringGrid::~StringGrid() {
  // A widget that goes away loses the focus, at a time when it is no grid any more.
  disconnect(qApp, nullptr, this, nullptr);
  model_.set_changed({});
}

void StringGrid::set_up_table() {
  setEditTriggers(NoEditTriggers);
  setSelectionMode(ContiguousSelection);
  setSelectionBehavior(SelectItems);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setAttribute(Qt::WA_InputMethodEnabled, false);
  horizontalHeader()->setVisible(adapter_->has_heading_row());
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setVisible(adapter_->has_heading_column());
  verticalHeader()->setSectionsClickable(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] { place_editor(); });
}

void StringGrid::set_up_editor() {
  editor_ = new CellEditor(viewport(), {[this](QKeyEvent& event) { return take_key(event); },
                                        [this](GridClick kind) { click(kind); },
                                        [this](QPoint place) { extend_selection(place); }});
  connect(editor_, &QLineEdit::textEdited, this,
          [this](const QString& text) { tell([&] { model_.edit(from_qt(text)); }); });
}

void StringGrid::set_up_headings() {
  headings_ = new GridHeadings(
      *this, {[this] {
                return to_qt(model_.text({0, 0}));
              },
              [this](GridClick kind) { click(kind); },
              [this](GridCell heading, QPoint place) {
                if (heading.column < 0 || heading.row < 0) return;
                const int width = heading.column == 0 ? verticalHeader()->width()
                                                      : columnWidth(heading.column - model_.fixed_columns());
                show_tip(heading, place, width);
              }});
}

void StringGrid::tell(const std::function<void()>& call) {
  std::string error = error_of([&] {
    const CallScope scope(calls_);
    call();
  });
  if (calls_ == 0) {
    const std::string error_of_following = error_of([this] { follow(); });
    if (!error_of_following.empty()) QTimer::singleShot(0, this, [this] { refresh(); });
    if (error.empty()) error = error_of_following;
  }
  if (!error.empty()) messages_.error(error);
}

void StringGrid::refresh() {
  if (calls_ > 0) {
    viewport()->update();
  } else {
    follow();
  }
}

void StringGrid::follow() {
  {
    const ScopedFlag following(following_);
    adapter_->adopt_counts();
    apply_sizes();
    follow_selection();
  }
  viewport()->update();
  headings_->repaint_visible();
  place_editor();
  tell_edit_under_way();
}

/// After a selection that the model has refused the table may have marked other cells than its current one.
void StringGrid::follow_selection() {
  const QModelIndex index = adapter_->index_of(model_.selected());
  if (index == currentIndex() && (!index.isValid() || selectionModel()->isSelected(index))) return;
  opened_ = false;
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
}

void StringGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (following_ || !current.isValid()) return;
  opened_ = false;
  tell([&] { model_.select(adapter_->cell_of(current)); });
}

void StringGrid::take_edit() {
  opened_ = false;
  if (calls_ == 0) tell([this] { model_.leave(); });
}

bool StringGrid::has_keys() const { return hasFocus() || editor_->hasFocus(); }

void StringGrid::focus_moved(const QWidget* now) {
  viewport()->update();  // the selection is painted otherwise without the keys
  // What goes to another window comes back here: a dialog about the edit must not take it once more. Nor
  // is what a lock takes the focus from left by a person.
  if (now == nullptr || now->window() != window() || now == this || isAncestorOf(now) || !isEnabled()) return;
  if (model_.edited() || opened_) take_edit();
}

void StringGrid::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  if (wants_editor()) editor_->setFocus(event->reason());
}

void StringGrid::hideEvent(QHideEvent* event) {
  if (isEnabled() && (model_.edited() || opened_)) take_edit();
  QTableView::hideEvent(event);
}

int StringGrid::rows_in_view() const { return viewport()->height() / verticalHeader()->defaultSectionSize(); }

void StringGrid::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  tell_rows_in_view();
}

void StringGrid::tell_rows_in_view() {
  const int rows = rows_in_view();
  if (rows == rows_told_) return;
  rows_told_ = rows;
  emit rows_in_view_changed(rows);
}

void StringGrid::tell_edit_under_way() {
  if (model_.edited() == edit_told_) return;
  edit_told_ = model_.edited();
  emit edit_under_way_changed(edit_told_);
}

void StringGrid::updateGeometries() {
  QTableView::updateGeometries();
  if (editor_ != nullptr) place_editor();
}

void StringGrid::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  place_editor();
}

void StringGrid::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (editor_ == nullptr) return;
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    apply_sizes();
    tell_rows_in_view();
  }
  if (event->type() == QEvent::EnabledChange) headings_->repaint_visible();
}

QString StringGrid::selected_text() const {
  if (!selectionModel()->hasSelection()) return adapter_->data(currentIndex(), Qt::DisplayRole).toString();
  const QItemSelectionRange range = selectionModel()->selection().first();
  QString text;
  for (int row = range.top(); row <= range.bottom(); ++row) {
    if (row > range.top()) text += u'\n';
    for (int column = range.left(); column <= range.right(); ++column) {
      if (column > range.left()) text += u'\t';
      text += adapter_->data(adapter_->index(row, column), Qt::DisplayRole).toString();
    }
  }
  return text;
}

void StringGrid::copy() const { QApplication::clipboard()->setText(selected_text()); }

}  // namespace kov
