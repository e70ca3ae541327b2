#include "interact/scripted_user.h"

#include <chrono>
#include <iterator>
#include <system_error>

namespace kov {

namespace {

constexpr std::string_view cancelled = "cancel";

/// Second and later lines indented by two blanks.
std::string indented(std::string_view text) {
  std::string lines;
  lines.reserve(text.size());
  for (const char c : text) {
    lines += c;
    if (c == '\n') lines += "  ";
  }
  return lines;
}

std::filesystem::path made_absolute(const std::filesystem::path& path) {
  std::error_code no_current_directory;
  auto absolute = std::filesystem::absolute(path, no_current_directory);
  return no_current_directory ? path : absolute;
}

}  // namespace

ScriptedUser::ScriptedUser(Sink sink, Captions captions) : sink_(std::move(sink)), captions_(captions) {}

void ScriptedUser::set_answers(std::vector<std::string> answers) {
  answers_.assign(std::make_move_iterator(answers.begin()), std::make_move_iterator(answers.end()));
}

void ScriptedUser::break_at_check(std::int64_t n) {
  checks_until_break_ = n;
  release_break();
}

bool ScriptedUser::take_failure() { return std::exchange(failed_, false); }

void ScriptedUser::flush_captions() {
  if (const auto kept = pace_.end()) report("caption: " + *kept);
}

bool ScriptedUser::yes_no(const std::string& text) {
  return choose(text, "yes", "no", yes_ ? "yes" : cancelled);
}

bool ScriptedUser::all_or_ok(const std::string& text) { return choose(text, "all", "ok", "ok"); }

std::optional<std::string> ScriptedUser::input(const InputDialog& dialog, const Accept& accept) {
  return answer_dialog(dialog.caption + ": " + dialog.prompt, accept);
}

std::optional<std::filesystem::path> ScriptedUser::open_file(const std::string& title) {
  return choose_file(title);
}

std::optional<std::filesystem::path> ScriptedUser::save_file(const std::string& title,
                                                             const std::filesystem::path& /*preset*/) {
  return choose_file(title);
}

void ScriptedUser::show(MessageKind kind, const std::string& text) {
  const bool is_error = kind == MessageKind::error;
  report((is_error ? "error: " : "message: ") + text);
  failed_ = failed_ || is_error;
}

void ScriptedUser::ring() { report("beep"); }

bool ScriptedUser::poll_break() {
  const bool reached = checks_until_break_ > 0 && --checks_until_break_ == 0;
  return reached || (interrupted_ && interrupted_());
}

void ScriptedUser::show_headline(const std::string& text) {
  if (captions_ == Captions::none) return;
  const bool thinned = captions_ == Captions::ten_a_second && is_open();
  if (!thinned || pace_.passes(text, std::chrono::steady_clock::now())) report("caption: " + text);
}

std::optional<std::string> ScriptedUser::next_answer() {
  if (answers_.empty()) return std::nullopt;
  std::string answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

bool ScriptedUser::choose(const std::string& text, std::string_view agree, std::string_view decline,
                          std::string_view unanswered) {
  auto answer = next_answer();
  if (!answer) {
    answer = unanswered;
    failed_ = failed_ || unanswered == cancelled;
  } else if (*answer != agree && *answer != decline) {
    refuse(*answer);
    answer = cancelled;
  }
  report("question: " + text + " -> " + *answer);
  return *answer == agree;
}

std::optional<std::string> ScriptedUser::answer_dialog(const std::string& text, const Accept& accept) {
  auto answer = next_answer();
  report("dialog: " + text + " -> " + answer.value_or(std::string(cancelled)));
  if (!answer) {
    failed_ = true;
  } else if (!accept(*answer)) {
    refuse(*answer);
    answer.reset();
  }
  return answer;
}

std::optional<std::filesystem::path> ScriptedUser::choose_file(const std::string& title) {
  const auto is_path = [](const std::string& text) { return !text.empty(); };
  const auto answer = answer_dialog(title + ":", is_path);
  if (!answer) return std::nullopt;
  auto path = made_absolute(*answer);
  std::error_code no_such_folder;
  std::filesystem::current_path(path.parent_path(), no_such_folder);
  return path;
}

void ScriptedUser::refuse(const std::string& answer) {
  report("refused: " + answer);
  failed_ = true;
}

void ScriptedUser::report(const std::string& text) const { sink_(indented(text)); }

}  // namespace kov
