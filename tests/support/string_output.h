#pragma once

#include <string>
#include <string_view>

#include "batch/output.h"

namespace kov {

/// Collects what is written in a string that the caller owns.
class StringOutput final : public Output {
 public:
  explicit StringOutput(std::string& text) : text_(text) {}
  void write(std::string_view text) override { text_ += text; }

 private:
  std::string& text_;
};

}  // namespace kov
