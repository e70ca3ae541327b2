#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "interact/questions.h"

namespace kov {

/// A person who cancels everything; keeps the last input dialog as it opened, its preset above all.
class CancellingQuestions final : public Questions {
 public:
  InputDialog asked;

  bool yes_no(const std::string&) override { return false; }
  bool all_or_ok(const std::string&) override { return false; }
  std::optional<std::string> input(const InputDialog& dialog, const Accept&) override {
    asked = dialog;
    return std::nullopt;
  }
  std::optional<std::filesystem::path> open_file(const std::string&) override { return std::nullopt; }
  std::optional<std::filesystem::path> save_file(const std::string&, const std::filesystem::path&) override {
    return std::nullopt;
  }
};

}  // namespace kov
