#include "interact/integer_question.h"

#include <algorithm>
#include <string_view>

#include "text/tokens.h"

namespace kov {

namespace {

/// Exactly N integers within the bounds, separated by commas.
template <std::size_t N>
std::optional<std::array<std::int32_t, N>> parse_integers(std::string_view text,
                                                          const IntegerBounds& bounds) {
  std::array<std::int32_t, N> values{};
  for (std::size_t k = 0; k < N; ++k) {
    const bool last = k + 1 == N;
    const auto end = last ? text.size() : text.find(',');
    if (end == std::string_view::npos) return std::nullopt;
    const auto value = parse_int32(trimmed(text.substr(0, end)));
    if (!value || !bounds.contains(*value)) return std::nullopt;
    values[k] = *value;
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return values;
}

template <std::size_t N>
bool any(const std::array<std::int32_t, N>&) {
  return true;
}

template <std::size_t N, class Condition>
std::optional<std::array<std::int32_t, N>> ask_integers(Questions& questions, const InputDialog& dialog,
                                                        const IntegerBounds& bounds,
                                                        const Condition& condition) {
  const auto accept = [&](const std::string& text) {
    const auto values = parse_integers<N>(text, bounds);
    return values && condition(*values);
  };
  const auto answer = questions.input(dialog, accept);
  if (!answer) return std::nullopt;
  return parse_integers<N>(*answer, bounds);
}

}  // namespace

std::string range_text(const IntegerBounds& bounds, char name) {
  const bool from = bounds.min != lowest_int;
  const bool to = bounds.max != highest_int;
  if (!from && !to) return {};
  std::string text = " [";
  if (from) text += int_text(bounds.min) + "<=";
  text += name;
  if (to) text += "<=" + int_text(bounds.max);
  return text + "]";
}

std::optional<std::int32_t> ask_integer(Questions& questions, const std::string& caption,
                                        const std::string& prompt, std::int32_t current,
                                        const IntegerBounds& bounds, char name) {
  const std::string request = std::string("\nenter integer ") + name + range_text(bounds, name);
  const auto values =
      ask_integers<1>(questions, {caption, prompt + request, int_text(current)}, bounds, any<1>);
  if (!values) return std::nullopt;
  return values->front();
}

std::optional<std::array<std::int32_t, 2>> ask_two_integers(Questions& questions, const std::string& caption,
                                                            const std::string& prompt,
                                                            const std::string& preset,
                                                            const IntegerBounds& bounds,
                                                            const PairCondition& condition) {
  const auto fulfils = [&condition](const std::array<std::int32_t, 2>& pair) {
    return !condition || condition(pair[0], pair[1]);
  };
  const InputDialog dialog{caption, prompt + "\nenter the two integers   a,b", preset};
  return ask_integers<2>(questions, dialog, bounds, fulfils);
}

std::optional<std::array<std::int32_t, 3>> ask_three_integers(Questions& questions,
                                                              const std::string& caption,
                                                              const std::string& prompt,
                                                              const std::string& preset,
                                                              const IntegerBounds& bounds) {
  return ask_integers<3>(questions, {caption, prompt + "\nenter the three integers   a,b,c", preset}, bounds,
                         any<3>);
}

}  // namespace kov
