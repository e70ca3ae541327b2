#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace kov {

/// A modal query for one line of text: window caption, the text above the input, and what stands in
/// the input when it opens.
struct InputDialog {
  std::string caption;
  std::string prompt;
  std::string preset;
};

/// The port by which the program asks a person.
class Questions {
 public:
  using Accept = std::function<bool(const std::string& text)>;

  virtual ~Questions() = default;

  /// Yes or no; a question that is cancelled is answered with no.
  virtual bool yes_no(const std::string& text) = 0;
  /// True for "All", false for "OK".
  virtual bool all_or_ok(const std::string& text) = 0;
  /// Asks until accept takes the text, or nothing when the person cancels. A refused text stays in the
  /// input for the next try.
  virtual std::optional<std::string> input(const InputDialog& dialog, const Accept& accept) = 0;
  /// The chosen file, or nothing. The folder of a chosen file becomes the current directory.
  virtual std::optional<std::filesystem::path> open_file(const std::string& title) = 0;
  virtual std::optional<std::filesystem::path> save_file(const std::string& title,
                                                         const std::filesystem::path& preset) = 0;
};

}  // namespace kov
