#pragma once

#include <filesystem>
#include <utility>

#include "interact/questions.h"

namespace kov {

/// The person at the window, except that the file to be opened is chosen already: it was dropped, or is one
/// of the recent files. As by a file dialog its folder becomes the current directory.
class ChosenFile final : public Questions {
 public:
  ChosenFile(Questions& person, std::filesystem::path path) : person_(person), path_(std::move(path)) {}

  bool yes_no(const std::string& text) override { return person_.yes_no(text); }
  bool all_or_ok(const std::string& text) override { return person_.all_or_ok(text); }
  std::optional<std::string> input(const InputDialog& dialog, const Accept& accept) override {
    return person_.input(dialog, accept);
  }
  std::optional<std::filesystem::path> open_file(const std::string& title) override;
  std::optional<std::filesystem::path> save_file(const std::string& title,
                                                 const std::filesystem::path& preset) override {
    return person_.save_file(title, preset);
  }

 private:
  Questions& person_;
  std::filesystem::path path_;
};

}  // namespace kov
