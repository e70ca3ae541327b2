#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>

#include "interact/messages.h"
#include "interact/questions.h"

class QWidget;

namespace kov {

// The modal boxes of the program. All texts are plain: "<=" in a prompt is no mark-up.

/// Asks for a line of text until accept takes it; a text that is refused stays, selected, and beeps. Nothing
/// when cancelled.
std::optional<std::string> ask_text(QWidget* parent, const InputDialog& dialog,
                                    const Questions::Accept& accept, const std::function<void()>& beep);

/// Yes or No; closing the box or Esc is No.
bool ask_yes_no(QWidget* parent, const std::string& text);
/// True for "All", false for "OK" and for closing the box.
bool ask_all_or_ok(QWidget* parent, const std::string& text);

void show_message(QWidget* parent, MessageKind kind, const std::string& text);

/// A file that exists, by the name it has, with an extension or without. Its folder becomes the current
/// directory.
std::optional<std::filesystem::path> choose_file_to_open(QWidget* parent, const std::string& title);
/// Asks before a file is chosen that exists; a name without an extension gets that of data files. The folder
/// becomes the current directory.
std::optional<std::filesystem::path> choose_file_to_save(QWidget* parent, const std::string& title,
                                                         const std::filesystem::path& preset);

/// What a file can be written as: "PNG picture", "png".
struct FileKind {
  const char* name;
  const char* extension;
};

/// A file that is written for other programs, of one of these kinds, the first one being preset. Asks before
/// a file is chosen that exists; a name without an extension gets that of the kind. The current directory
/// stays.
std::optional<std::filesystem::path> choose_file_to_export(QWidget* parent, const std::string& title,
                                                           const std::string& preset,
                                                           std::span<const FileKind> kinds);

}  // namespace kov
