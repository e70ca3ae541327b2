#include "batch/line_executor.h"

#include <utility>

#include "batch/printer.h"
#include "workbench/check_boxes.h"
#include "workbench/command.h"

namespace kov {

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

bool LineExecutor::operator()(const CommandLine& line) {
  const std::string name = line.menu + "/" + line.item;
  const Command* command = find_command(line.menu, line.item);
  if (command == nullptr) return fail("no such command: " + name);
  if (!is_enabled(*command, workbench_)) return fail("disabled now: " + name);
  const Break armed(*this);
  user_.set_answers(line.answers);
  run_command(*command, workbench_, user_.user());
  user_.set_answers({});
  return true;
}

bool LineExecutor::operator()(const SetLine& line) {
  if (!workbench_.document.cph.set_from_text(line.keyword, line.value)) return false;
  workbench_.apply_parameter(line.keyword, user_);
  return true;
}

bool LineExecutor::operator()(const CheckLine& line) {
  return set_check_box(workbench_, line.name, line.on) || fail("no such check box: " + line.name);
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
  const Printer print = find_printer(line.what);
  if (print == nullptr) return fail("nothing to print: " + line.what);
  const Break armed(*this);
  if (!line.file) {
    print(workbench_, user_.user(), output_);
    return true;
  }
  FileOutput file(*line.file);
  print(workbench_, user_.user(), file);
  const std::string failure = file.take_failure();
  return failure.empty() || fail(*line.file + " cannot be written: " + failure);
}

bool LineExecutor::operator()(const UnknownLine& line) { return fail(line.reason); }

bool LineExecutor::fail(const std::string& reason) {
  sink_("error: " + reason);
  return false;
}

}  // namespace kov
