#pragma once

#include <QString>
#include <QTableView>
#include <functional>
#include <vector>

#include "interact/grid_model.h"
#include "interact/messages.h"

namespace kov {

class CellEditor;
class GridAdapter;
class GridHeadings;

/// The one widget of all grids: paints a grid model and passes on what a person does. Every key goes to the
/// model first, also from the open editor; what the model leaves belongs to the editor or moves the
/// selection. The model's selected cell is the table's current one, in both directions. Only what is in
/// view is asked for. The model outlives the grid, which takes its set_changed for itself. What a key, a
/// selection or a click makes the model throw is shown as an error.
class StringGrid final : public QTableView {
  Q_OBJECT

 public:
  StringGrid(GridModel& model, Messages& messages, QWidget* parent = nullptr);
  ~StringGrid() override;

  GridModel& model_of_grid() { return model_; }

  /// Text of the tool tip over a cell, headings included; where it is empty, as without a function, a text
  /// that does not fit into its cell shows in full.
  void set_tool_tip(std::function<QString(GridCell)> tool_tip) { tool_tip_ = std::move(tool_tip); }
  /// Whether a double click opens the editor, besides being told to the model. Initially so.
  void set_opens_on_double_click(bool opens) { opens_on_double_click_ = opens; }
  /// Whether zeros are painted paler than other numbers: where most cells are zero, the others then show at a
  /// glance. Initially not.
  void set_dims_zeros(bool dims) { dims_zeros_ = dims; }
  bool dims_zeros() const { return dims_zeros_; }
  /// Columns become wider than the model says where the text in this row of the model needs it; -1, as
  /// initially, is no row. For grids with few columns: the texts of all of them are measured at every change.
  void set_fitted_row(int row);

  /// Takes a pending edit. Commands that do not come from the grid call it before they read or change what
  /// the grid shows.
  void take_edit();
  /// Whole rows that fit into the view, without the heading row.
  int rows_in_view() const;
  /// The selected cells, columns separated by tabs and every row ended by a line feed but the last.
  QString selected_text() const;
  void copy() const;
  /// Whether keys go to the grid or to its editor.
  bool has_keys() const;
  /// Shows what the model holds now. Called by itself whenever the model says that it has changed.
  void refresh();

  /// Searches nothing: it would ask the model for every text of the grid.
  void keyboardSearch(const QString&) override {}

 signals:
  /// The number of whole rows in view has changed.
  void rows_in_view_changed(int rows);
  /// The selected cell is being edited from now on, or not any more.
  void edit_under_way_changed(bool under_way);

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  void set_up_table();
  void set_up_editor();
  void set_up_headings();

  /// Calls into the model, and follows it when the outermost call is over: in between the model may be
  /// half-way. What the call throws goes no further, since it would meet a table view that is half-way, too.
  void tell(const std::function<void()>& call);
  void follow();
  void follow_selection();
  void tell_rows_in_view();
  void tell_edit_under_way();
  void apply_sizes();
  void apply_row_height();
  void apply_column_widths();
  int wanted_width(int column) const;
  void apply_heading_width();
  int scaled(int pixels) const;

  bool take_key(QKeyEvent& event);
  bool model_takes(const QKeyEvent& event);
  bool take_key_of_grid(QKeyEvent& event);
  bool move_out_of_editor(QKeyEvent& event);
  bool start_edit(QKeyEvent& event);
  bool move_by(QKeyEvent& event);
  bool move_by_tab(bool forward);
  void go_to(const QModelIndex& index);
  bool copies_cells() const;
  void click(GridClick click);
  void extend_selection(QPoint place);
  void focus_moved(const QWidget* now);
  void show_tip(GridCell cell, QPoint place, int width);

  bool wants_editor() const;
  bool open_editor();
  bool open_editor_with(const QString& text);
  bool open_editor_within_text();
  bool give_up_edit();
  void close_editor();
  void place_editor();
  void fill_editor();

  GridModel& model_;
  Messages& messages_;
  GridAdapter* adapter_;
  CellEditor* editor_ = nullptr;
  GridHeadings* headings_ = nullptr;
  std::function<QString(GridCell)> tool_tip_;
  bool opens_on_double_click_ = true;
  bool dims_zeros_ = false;
  int fitted_row_ = -1;
  /// Calls into the model that are under way.
  int calls_ = 0;
  bool following_ = false;
  /// A person opened the editor of the selected cell.
  bool opened_ = false;
  /// The cell whose text the editor was last filled with.
  GridCell editor_cell_{-1, -1};
  std::vector<int> widths_told_;
  int rows_told_ = -1;
  bool edit_told_ = false;
};

}  // namespace kov
