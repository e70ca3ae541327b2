#include "batch/line_executor.h"

#include <utility>

#include "batch/key_names.h"
#include "batch/printer.h"
#include "workbench/check_boxes.h"
#include "workbench/command.h"
#include "workbench/page_picture.h"

namespace kov {
namespace {

/// "Slq 3,2", as a line names it.
std::string text_of(const CellName& place) {
  return place.grid + " " + int_text(place.cell.column) + "," + int_text(place.cell.row);
}

bool has_cell(const GridModel& grid, GridCell cell) {
  return 0 <= cell.column && cell.column < grid.column_count() && 0 <= cell.row &&
         cell.row < grid.row_count();
}

}  // namespace

/// Arms a Break that an earlier line asked for while a line runs something; unused, it is gone afterwards.
class LineExecutor::Break {
 public:
  explicit Break(LineExecutor& executor) : user_(executor.user_) {
    user_.break_at_check(std::exchange(executor.pending_break_, 0));
  }
  ~Break() { user_.break_at_check(0); }
  Break(const Break&) = delete;
  Break& operator=(const Break&) = delete;

 private:
  ScriptedUser& user_;
};

/// Answers for the dialogs of one line; what no dialog asked for is gone afterwards.
class LineExecutor::Answers {
 public:
  Answers(ScriptedUser& user, const std::vector<std::string>& answers) : user_(user) {
    user_.set_answers(answers);
  }
  ~Answers() { user_.set_answers({}); }
  Answers(const Answers&) = delete;
  Answers& operator=(const Answers&) = delete;

 private:
  ScriptedUser& user_;
};

bool LineExecutor::operator()(const CommandLine& line) {
  const std::string name = line.menu + "/" + line.item;
  const Command* command = find_command(line.menu, line.item);
  if (command == nullptr) return fail_for_want_of("command", name);
  pages_.leave_grids();  // What was typed may be what enables it.
  if (!is_enabled(*command, workbench_)) return fail("disabled now: " + name);
  const Break armed(*this);
  const Answers answers(user_, line.answers);
  run_command(*command, workbench_, user_.user());
  return true;
}

bool LineExecutor::operator()(const SetLine& line) {
  pages_.leave_grids();
  if (!workbench_.document.cph.set_from_text(line.keyword, line.value)) return false;
  workbench_.apply_parameter(line.keyword, user_);
  return true;
}

bool LineExecutor::operator()(const CheckLine& line) {
  pages_.leave_grids();
  return set_check_box(workbench_, line.name, line.on) || fail_for_want_of("check box", line.name);
}

bool LineExecutor::operator()(const RadioLine& line) {
  pages_.leave_grids();
  pages_.choose_graph2_radio(line.index);
  return true;
}

bool LineExecutor::operator()(const CommentLine& line) {
  workbench_.document.append_comment_line(line.text);
  return true;
}

bool LineExecutor::operator()(const EchoLine& line) {
  output_.write(line.text + "\n");
  return true;
}

bool LineExecutor::operator()(const BreakLine& line) {
  pending_break_ = line.check;
  return true;
}

bool LineExecutor::operator()(const PrintLine& line) {
  const Printer print = find_printer(line.what, workbench_, pages_, user_.user());
  if (!print) return fail("nothing to print: " + line.what);
  const Break armed(*this);
  pages_.leave_grids();
  if (!line.file) {
    print(output_);
    return true;
  }
  FileOutput file(*line.file);
  print(file);
  const std::string failure = file.take_failure();
  return failure.empty() || fail(*line.file + " cannot be written: " + failure);
}

bool LineExecutor::operator()(const DrawLine& line) {
  if (pictures_ == nullptr) return fail("this kovbatch was built without pictures");
  const Break armed(*this);
  pages_.leave_grids();
  const auto [width, height] = line.size;
  try {
    const TextMeasure& measure = pictures_->measure();
    pictures_->write(page_picture(workbench_, pages_, line.page, width, height, measure), line.file);
    return true;
  } catch (const picture_error& error) {
    user_.error(error.what());
    return false;
  }
}

bool LineExecutor::operator()(const CellLine& line) {
  if (!Pages::is_grid(line.place.grid)) return fail_for_want_of("grid", line.place.grid);
  GridModel* const grid = select(line.place);
  if (grid == nullptr) return false;
  if (!grid->editable(line.place.cell)) return fail("a cell that cannot be edited: " + text_of(line.place));
  grid->edit(line.text);
  grid->leave();
  return true;
}

bool LineExecutor::operator()(const KeyLine& line) {
  if (!Pages::is_grid(line.place.grid)) return fail_for_want_of("grid", line.place.grid);
  const auto key = key_named(line.key);
  if (!key) return fail_for_want_of("key", line.key);
  const Break armed(*this);
  GridModel* const grid = select(line.place);
  if (grid == nullptr) return false;
  grid->press(*key);
  return true;
}

bool LineExecutor::operator()(const ClickLine& line) {
  if (!Pages::is_grid(line.place.grid)) return fail_for_want_of("grid", line.place.grid);
  const Break armed(*this);
  const Answers answers(user_, line.answers);
  GridModel* const grid = enter(line.place);
  if (grid == nullptr) return false;
  grid->click(line.click, line.place.cell);
  return true;
}

bool LineExecutor::operator()(const UnknownLine& line) { return fail(line.reason); }

bool LineExecutor::fail(const std::string& reason) {
  sink_("error: " + reason);
  return false;
}

bool LineExecutor::fail_for_want_of(const char* what, const std::string& name) {
  return fail(std::string("no such ") + what + ": " + name);
}

GridModel* LineExecutor::enter(const CellName& place) {
  GridModel& grid = pages_.enter(place.grid);
  if (has_cell(grid, place.cell)) return &grid;
  fail_for_want_of("cell", text_of(place));
  return nullptr;
}

GridModel* LineExecutor::select(const CellName& place) {
  GridModel* const grid = enter(place);
  if (grid != nullptr) grid->select(place.cell);
  return grid;
}

}  // namespace kov
