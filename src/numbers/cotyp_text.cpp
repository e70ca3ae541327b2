#include <array>
#include <cstdint>

#include "numbers/cotyp.h"
#include "numbers/put_text.h"
#include "text/tokens.h"

namespace kov {

namespace {

bool is_sign(char c) { return c == '+' || c == '-'; }

/// The shape of all texts of quantities, as put_text gives it; part_text writes one part.
template <class PartText>
std::string quantity_text(const cotyp& q, PartText part_text) {
  if (q.im == 0) return part_text(q.re);
  if (q.re == 0) return part_text(q.im) + "i";
  return part_text(q.re) + (q.im < 0 ? "" : "+") + part_text(q.im) + "i";
}

/// Where the imaginary part begins in text, which is everything before the "i": at the first sign that
/// neither starts the text nor may belong to an exponent. Not below the size of text when there is
/// none.
std::size_t imaginary_begin(std::string_view text) {
  std::size_t k = !text.empty() && is_sign(text.front()) ? 1 : 0;
  for (; k < text.size() && !is_sign(text[k]); ++k) {
    if (text[k] == 'E' || text[k] == 'e') ++k;
  }
  return k;
}

/// Reads a quantity from everything before its "i".
bool parts_from_text(std::string_view text, cotyp& q) {
  cotyp parts;
  const std::size_t k = imaginary_begin(text);
  if (k < text.size()) {
    if (!from_text(text.substr(0, k), parts.re)) return false;
    text.remove_prefix(k);
  }
  if (!from_text(text, parts.im)) return false;
  q = parts;
  return true;
}

}  // namespace

std::string to_text(const cotyp& q) {
  std::array<char, longest_quantity_text> text;
  return {text.data(), put_text(text.data(), q)};
}

std::string to_text_short(const cotyp& q, int width) {
  std::string text = to_text(q);
  if (static_cast<std::int64_t>(text.size()) <= std::int64_t{width} + 3) return text;
  return quantity_text(q, [half = width / 2](const ratyp& part) { return to_text_short(part, half); });
}

bool from_text(std::string_view text, cotyp& q) {
  text = trimmed(text);
  const auto unit = text.find('i');
  if (unit == std::string_view::npos) {
    ratyp real;
    if (!from_text(text, real)) return false;
    q = cotyp(real, ratyp());
    return true;
  }
  if (unit != text.size() - 1) return false;
  text.remove_suffix(1);
  if (text.empty() || is_sign(text.back())) return parts_from_text(std::string(text) + '1', q);
  return parts_from_text(text, q);
}

}  // namespace kov
