#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "interact/user.h"

namespace kov {

/// A person made of a queue of answers and a transcript: kovbatch's user, and that of the tests. Every
/// report goes line by line to the sink in the form that kovbatch writes to standard error:
/// "message: TEXT", "error: TEXT", "question: TEXT -> yes", "beep", "dialog: CAPTION: PROMPT -> ANSWER",
/// "dialog: CAPTION: -> PATH", "refused: ANSWER", "caption: TEXT". Second and later lines of a TEXT are
/// indented by two blanks.
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

  /// Break is met at the n-th check from now on (n >= 1); 0 takes that back.
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
  std::optional<std::filesystem::path> open_file(const std::string& title) override;
  std::optional<std::filesystem::path> save_file(const std::string& title,
                                                 const std::filesystem::path& preset) override;

  void open(const std::string& title, std::int64_t from, std::int64_t to) override;
  void at(std::int64_t position) override;
  void close() override;
  bool break_requested() override;
  void breathe() override {}

 protected:
  void show(MessageKind kind, const std::string& text) override;
  void ring() override;
  void show_headline(const std::string& text) override;
  void show_caption(const std::string& text) override;

 private:
  std::optional<std::string> next_answer();
  std::optional<std::filesystem::path> choose_file(const std::string& title);
  void report(const std::string& text);

  Sink sink_;
  Captions captions_;
  std::deque<std::string> answers_;
  bool yes_ = false;
  bool failed_ = false;
  std::int64_t checks_until_break_ = 0;
  std::function<bool()> interrupted_;
  bool first_caption_ = true;
  std::optional<std::string> held_caption_;
  std::chrono::steady_clock::time_point last_caption_{};
};

}  // namespace kov
