#include "text/tokens.h"

#include <algorithm>

namespace kov {

namespace {

constexpr std::string_view blanks = " \t";

}  // namespace

std::string_view Tokens::next() {
  const auto begin = rest_.find_first_not_of(blanks);
  if (begin == std::string_view::npos) {
    rest_ = {};
    return {};
  }
  const auto end = std::min(rest_.find_first_of(blanks, begin), rest_.size());
  const std::string_view token = rest_.substr(begin, end - begin);
  rest_.remove_prefix(end);
  return token;
}

bool Tokens::at_end() const { return rest_.find_first_not_of(blanks) == std::string_view::npos; }

std::string_view trimmed(std::string_view text) {
  const auto is_blank = [](char c) { return static_cast<unsigned char>(c) <= ' '; };
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace kov
