#include <algorithm>
#include <array>
#include <cstdint>

#include "numbers/floating_text.h"
#include "numbers/put_text.h"
#include "numbers/ratyp.h"
#include "text/integers.h"

namespace kov {

namespace {

bool fraction_from_text(std::string_view nu_text, std::string_view de_text, ratyp& q) {
  const auto nu = parse_int32(nu_text);
  const auto de = parse_int32(de_text);
  if (!nu || !de || *de == 0) return false;
  q = ratyp(*nu, *de);
  return true;
}

}  // namespace

std::string to_text(const ratyp& q) {
  std::array<char, longest_part_text> text;
  return {text.data(), put_text(text.data(), q)};
}

std::string to_text_short(const ratyp& q, int width) {
  std::string text = to_text(q);
  if (static_cast<std::int64_t>(text.size()) <= std::int64_t{width} + 3) return text;
  return floating_text(to_double(q), std::max(width, 1));
}

bool from_text(std::string_view text, ratyp& q) {
  if (const auto slash = text.find('/'); slash != std::string_view::npos) {
    return fraction_from_text(text.substr(0, slash), text.substr(slash + 1), q);
  }
  if (const auto k = parse_int32(text)) {
    q = ratyp(*k);
    return true;
  }
  if (const auto fl = parse_floating(text)) {
    q = ratyp::floating(*fl);
    return true;
  }
  return false;
}

}  // namespace kov
