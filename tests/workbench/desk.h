#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "interact/scripted_user.h"
#include "support/temporary_folder.h"
#include "workbench/command.h"
#include "workbench/workbench.h"

namespace kov {

/// A workbench with a scripted person at it, in a folder of its own.
struct Desk {
  TemporaryFolder folder;
  std::vector<std::string> reports;
  ScriptedUser person{[this](const std::string& report) { reports.push_back(report); },
                      ScriptedUser::Captions::every};
  Workbench workbench{person, WindowFacts{}};

  Document& document() { return workbench.document; }
  Lmap& lmap() { return workbench.document.lmap; }
  Algadd& algadd() { return workbench.document.algadd; }
  User user() { return person.user(); }

  /// Runs a command of the table and gives what was reported meanwhile. A command that does not exist or
  /// is disabled is a test failure.
  std::vector<std::string> run(std::string_view menu, std::string_view item,
                               std::vector<std::string> answers = {});

  /// Likewise, as one text.
  std::string run_text(std::string_view menu, std::string_view item, std::vector<std::string> answers = {});

  /// What the input of the command's dialog holds when it opens; the dialog is cancelled.
  std::string preset(std::string_view menu, std::string_view item);

  bool enabled(std::string_view menu, std::string_view item) const;
  std::string caption(std::string_view menu, std::string_view item) const;

  /// A point with the quantity n + 1 at the origin of each of the rows first ... last.
  void fill_rows(std::int32_t first, std::int32_t last);
  /// Every point by its step alone, in key order: "n:quantity n:quantity ...".
  std::string rows() const;

  /// Table t gets the one entry that moves half of a point to k1 + 1.
  void set_halving_entry(int table);
};

/// What the report of an input dialog says.
std::string dialog_report(std::string_view caption, std::string_view prompt, std::string_view answer);
/// What the report of a yes/no question says.
std::string question_report(std::string_view text, std::string_view answer);
/// What the report of a message that is no error says.
std::string message_report(std::string_view text);

}  // namespace kov
