#include "workbench/quantity_question.h"

namespace kov {

std::optional<cotyp> ask_quantity(Questions& questions, const std::string& caption,
                                  const std::string& prompt) {
  cotyp c;
  const auto accept = [&c](const std::string& text) { return from_text(text, c); };
  if (!questions.input({caption, prompt + "\nenter complex number c", "1"}, accept)) return std::nullopt;
  return c;
}

}  // namespace kov
