#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "interact/caption_pace.h"
#include "interact/user.h"

namespace kov {

/// A person made of a queue of answers and a transcript: kovbatch's user, and that of the tests. Every
/// report goes to the sink in the form that kovbatch writes to standard error:
/// "message: TEXT", "error: TEXT", "question: TEXT -> yes", "beep", "dialog: CAPTION: PROMPT -> ANSWER",
/// "dialog: CAPTION: -> PATH", "refused: ANSWER", "caption: TEXT". Second and later lines of a report are
/// indented by two blanks, so that a line that starts in the first column always starts a new report.
///
/// An answer that the dialog refuses counts as a cancel and as a failure, and so does a dialog for which
/// no answer is left; "All or OK" alone then takes OK, which is no failure.
class ScriptedUser final : public Messages, public Questions, public Progress {
 public:
  /// Takes one report, without a line end; it may hold several lines.
  using Sink = std::function<void(const std::string& report)>;
  enum class Captions { none, ten_a_second, every };

  explicit ScriptedUser(Sink sink, Captions captions = Captions::ten_a_second);

  User user() { return {*this, *this, *this}; }

  /// Answers for the dialogs to come; replaces what is left of the last ones.
  void set_answers(std::vector<std::string> answers);
  std::size_t answers_left() const { return answers_.size(); }
  /// Answer yes to every question for which no answer is left.
  void set_yes(bool yes) { yes_ = yes; }

  /// Break is pressed at the n-th check from now on (n >= 1), and then stays so as Progress says; 0 takes
  /// that back, a Break that is still pressed included.
  void break_at_check(std::int64_t n);
  /// Asked at every check besides: true when the person interrupted the program.
  void set_interrupted(std::function<bool()> interrupted) { interrupted_ = std::move(interrupted); }

  /// True when, since the last call, an error was shown, an answer was refused or a dialog was
  /// cancelled for want of an answer.
  bool take_failure();

  /// Reports a caption that the limit of ten a second holds back.
  void flush_captions();

  bool yes_no(const std::string& text) override;
  bool all_or_ok(const std::string& text) override;
  std::optional<std::string> input(const InputDialog& dialog, const Accept& accept) override;
  /// A chosen path is made absolute by the current directory, then its folder becomes the current
  /// directory, if there is such a folder. Whether there is such a file is for the caller to find out.
  std::optional<std::filesystem::path> open_file(const std::string& title) override;
  std::optional<std::filesystem::path> save_file(const std::string& title,
                                                 const std::filesystem::path& preset) override;

  void breathe() override {}

 protected:
  void show(MessageKind kind, const std::string& text) override;
  void ring() override;
  void show_box(const Box&) override {}
  void hide_box() override { flush_captions(); }
  bool poll_break() override;
  void show_headline(const std::string& text) override;
  void show_caption(const std::string&) override {}

 private:
  std::optional<std::string> next_answer();
  bool choose(const std::string& text, std::string_view agree, std::string_view decline,
              std::string_view unanswered);
  std::optional<std::string> answer_dialog(const std::string& text, const Accept& accept);
  std::optional<std::filesystem::path> choose_file(const std::string& title);
  void refuse(const std::string& answer);
  void report(const std::string& text) const;

  Sink sink_;
  Captions captions_;
  CaptionPace pace_;
  std::deque<std::string> answers_;
  bool yes_ = false;
  bool failed_ = false;
  std::int64_t checks_until_break_ = 0;
  std::function<bool()> interrupted_;
};

}  // namespace kov
