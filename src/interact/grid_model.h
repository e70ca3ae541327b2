#pragma once

#include <functional>
#include <string>

namespace kov {

/// A cell of a grid, both counted from 0, headings included.
struct GridCell {
  int column = 0;
  int row = 0;

  friend bool operator==(const GridCell&, const GridCell&) = default;
};

/// A key as it reaches a grid: a character, or one that has a name.
struct GridKey {
  enum class Name {
    character,
    enter,
    escape,
    tab,
    backspace,
    up,
    down,
    page_up,
    page_down,
    first_page,
    last_page
  };

  Name name = Name::character;
  /// Meaningful for Name::character alone.
  char character = '\0';

  static GridKey of(char c) { return {Name::character, c}; }
};

enum class GridClick { left, right, double_click };

/// What a page shows in a grid and what keys, mouse and typing do to it, without any window: the widget
/// paints the texts and passes on what a person does, and kovbatch and tests do the same by calls. Cells are
/// computed when they are asked for.
///
/// One cell is selected; the text in its editor counts as edited from the first change on, and is taken
/// (take_edit) when the selection leaves the cell, the grid is left, or a key of the model asks for it.
class GridModel {
 public:
  virtual ~GridModel() = default;

  virtual int column_count() const = 0;
  virtual int row_count() const = 0;
  /// Heading columns and rows, which scroll with nothing and are never edited.
  virtual int fixed_columns() const { return 1; }
  virtual int fixed_rows() const { return 1; }
  /// What stands in a cell, from whatever the grid is a view of.
  virtual std::string text(GridCell cell) const = 0;
  virtual bool editable(GridCell) const { return false; }
  /// Whether the selected cell always shows its editor.
  virtual bool always_shows_editor() const { return false; }
  /// Pixels at the resolution of 96 dots an inch.
  virtual int default_column_width() const = 0;
  /// Likewise for one column, where not all are alike.
  virtual int column_width(int) const { return default_column_width(); }

  /// Does what choosing the tab of the grid's page does: computes anew whatever is computed.
  virtual void show() {}

  GridCell selected() const { return selected_; }
  /// Takes an edit of the cell that is left, then selects another; cells outside the grid are ignored.
  void select(GridCell cell);
  /// Selects the cell behind or before the selected one, row by row, as Tab and Shift+Tab do. False, with
  /// nothing done: there is none.
  bool select_next(bool forward);

  /// The editor's text: as edited, else the selected cell's.
  std::string editor_text() const { return edited_ ? edited_text_ : text(selected_); }
  bool edited() const { return edited_; }
  /// The editor's text has become this.
  void edit(std::string text);
  /// The grid is left: takes an edit. Where that throws the text stays in the editor.
  void leave();
  /// Forgets an edit: the editor shows the cell's text again.
  void give_up_edit() {
    forget_edit();
    changed();
  }

  /// A key at the selected cell. True: the model has acted on it. False: it is the editor's or moves the
  /// selection, as in any grid.
  virtual bool key(const GridKey& key) = 0;
  /// key(), and for what it leaves to the editor and the grid: a character replaces the text at first and
  /// then appends, Backspace removes the last one, Tab, Up and Down move the selection. For those without
  /// an editor of their own.
  void press(const GridKey& key);

  /// The mouse at a cell. The cell is selected first.
  void click(GridClick click, GridCell cell);

  /// Called whenever texts, counts or the selection may have changed.
  void set_changed(std::function<void()> changed) { changed_ = std::move(changed); }

 protected:
  /// Takes the edited text of a cell, or refuses it with a beep. The cell is not edited any more.
  virtual void take_edit(GridCell, const std::string&) {}
  /// Another cell was selected by a person.
  virtual void selection_moved() {}
  virtual void clicked(GridClick, GridCell) {}

  void forget_edit() { edited_ = false; }
  /// Does what stores the text of the editor, which is no edit any more meanwhile, nor afterwards. Where
  /// store throws it is one again, unless another cell is selected by then.
  void end_edit(const std::function<void()>& store);
  /// Moves the selection by itself, which is no selecting of a person's: an edit is given up.
  void move_to(GridCell cell);
  void changed() const {
    if (changed_) changed_();
  }

 private:
  bool contains(GridCell cell) const;

  GridCell selected_{1, 1};
  bool edited_ = false;
  std::string edited_text_;
  std::function<void()> changed_;
};

}  // namespace kov
