#include "workbench/desk.h"

#include <gtest/gtest.h>

#include "support/cancelling_questions.h"
#include "text/integers.h"

namespace kov {
namespace {

const Command* command_or_failure(std::string_view menu, std::string_view item) {
  const Command* command = find_command(menu, item);
  EXPECT_NE(command, nullptr) << menu << "/" << item;
  return command;
}

/// Second and later lines of a report stand two blanks further right.
std::string indented(std::string_view text) {
  std::string result;
  for (const char c : text) {
    result += c;
    if (c == '\n') result += "  ";
  }
  return result;
}

}  // namespace

std::vector<std::string> Desk::run(std::string_view menu, std::string_view item,
                                   std::vector<std::string> answers) {
  reports.clear();
  const Command* command = command_or_failure(menu, item);
  if (command == nullptr) return reports;
  EXPECT_TRUE(is_enabled(*command, workbench)) << menu << "/" << item;
  person.set_answers(std::move(answers));
  run_command(*command, workbench, person.user());
  EXPECT_EQ(person.answers_left(), 0U) << menu << "/" << item;
  return reports;
}

std::string Desk::run_text(std::string_view menu, std::string_view item, std::vector<std::string> answers) {
  std::string text;
  for (const std::string& report : run(menu, item, std::move(answers))) {
    text += (text.empty() ? "" : "\n") + report;
  }
  return text;
}

std::string Desk::preset(std::string_view menu, std::string_view item) {
  CancellingQuestions questions;
  if (const Command* command = command_or_failure(menu, item)) {
    run_command(*command, workbench, {person, questions, person});
  }
  return questions.asked.preset;
}

bool Desk::enabled(std::string_view menu, std::string_view item) const {
  const Command* command = command_or_failure(menu, item);
  return command != nullptr && is_enabled(*command, workbench);
}

std::string Desk::caption(std::string_view menu, std::string_view item) const {
  const Command* command = command_or_failure(menu, item);
  return command == nullptr ? "" : live_caption(*command, workbench);
}

void Desk::fill_rows(std::int32_t first, std::int32_t last) {
  lmap().clear();
  for (std::int32_t n = first; n <= last; ++n) lmap().set(Lk::at(0, n), cotyp(n + 1));
}

std::string Desk::rows() const {
  std::string text;
  for (auto point = workbench.document.lmap.begin(); point != workbench.document.lmap.end(); ++point) {
    text += (text.empty() ? "" : " ") + int_text(point.key().n()) + ":" + to_text(point.quantity());
  }
  return text;
}

void Desk::set_halving_entry(int table) {
  AlgaddEntry entry;
  entry.p = cotyp(1, 2, 0, 1);
  entry.offset = Lk::at(0, 1, 1);
  algadd().set_entry(table, 0, entry);
}

std::string dialog_report(std::string_view caption, std::string_view prompt, std::string_view answer) {
  return "dialog: " + indented(caption) + ": " + indented(prompt) + " -> " + std::string(answer);
}

std::string question_report(std::string_view text, std::string_view answer) {
  return "question: " + indented(text) + " -> " + std::string(answer);
}

std::string message_report(std::string_view text) { return "message: " + indented(text); }

}  // namespace kov
