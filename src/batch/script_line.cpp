#include "batch/script_line.h"

#include <algorithm>
#include <array>

#include "batch/key_names.h"
#include "graphs/value_map.h"
#include "text/integers.h"
#include "text/tokens.h"

namespace kov {
namespace {

/// What stands behind the first word and the one blank after it.
std::string_view behind_word(std::string_view line, std::string_view word) {
  line.remove_prefix(word.size());
  if (!line.empty()) line.remove_prefix(1);
  return line;
}

std::string with_single_blanks(std::string_view text) {
  std::string result;
  Tokens tokens(text);
  for (std::string_view token = tokens.next(); !token.empty(); token = tokens.next()) {
    if (!result.empty()) result += ' ';
    result += token;
  }
  return result;
}

/// The pieces between the bars; nothing when one of several is left empty, since it could as well be
/// meant for an empty answer as for none.
std::optional<std::vector<std::string>> parse_answers(std::string_view text) {
  std::vector<std::string> answers;
  if (trimmed(text).empty()) return answers;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t bar = std::min(text.find('|', begin), text.size());
    const std::string_view answer = trimmed(text.substr(begin, bar - begin));
    if (answer.empty()) return std::nullopt;
    answers.emplace_back(answer == "\"\"" ? std::string_view{} : answer);
    begin = bar + 1;
  }
  return answers;
}

constexpr const char* empty_answer = "an empty answer is written \"\"";

/// The answers behind a colon at this place of a line; none without one.
std::optional<std::vector<std::string>> answers_behind(std::string_view line, std::size_t colon) {
  return parse_answers(colon == std::string_view::npos ? "" : line.substr(colon + 1));
}

ScriptLine parse_command(std::string_view line, std::size_t slash) {
  const std::size_t colon = line.find(':', slash);
  const std::string_view item = line.substr(slash + 1, colon - slash - 1);
  auto answers = answers_behind(line, colon);
  if (!answers) return UnknownLine{empty_answer};
  return CommandLine{std::string(line.substr(0, slash)), with_single_blanks(item), std::move(*answers)};
}

ScriptLine parse_set(std::string_view rest) {
  Tokens tokens(rest);
  const std::string_view keyword = tokens.next();
  const std::string_view value = tokens.next();
  if (value.empty() || !tokens.at_end()) return UnknownLine{"expected: Set KEYWORD VALUE"};
  return SetLine{std::string(keyword), std::string(value)};
}

ScriptLine parse_check(std::string_view rest) {
  Tokens tokens(rest);
  const std::string_view name = tokens.next();
  const std::string_view state = tokens.next();
  if ((state != "on" && state != "off") || !tokens.at_end()) {
    return UnknownLine{"expected: Check NAME on, or off"};
  }
  return CheckLine{std::string(name), state == "on"};
}

ScriptLine parse_radio(std::string_view rest) {
  Tokens tokens(rest);
  const std::string_view page = tokens.next();
  const auto index = parse_int32(tokens.next());
  if (page != "Graph2" || !index || *index < 0 || *index >= MapChoice::count || !tokens.at_end()) {
    return UnknownLine{"expected: Radio Graph2 INDEX, with INDEX from 0 to 9"};
  }
  return RadioLine{*index};
}

ScriptLine parse_break(std::string_view rest) {
  const auto check = parse_int32(trimmed(rest));
  if (!check || *check < 1) return UnknownLine{"expected: Break N, with N from 1 on"};
  return BreakLine{*check};
}

ScriptLine parse_print(std::string_view rest) {
  const std::size_t arrow = rest.find('>');
  PrintLine print{with_single_blanks(rest.substr(0, arrow)), std::nullopt};
  if (arrow != std::string_view::npos) print.file = trimmed(rest.substr(arrow + 1));
  if (print.what.empty() || (print.file && print.file->empty())) {
    return UnknownLine{"expected: Print WHAT, or Print WHAT > FILE"};
  }
  return print;
}

/// The file's name may contain blanks; the last word is a size if it reads like one.
ScriptLine parse_draw(std::string_view rest) {
  Tokens tokens(rest);
  const std::string_view graph = tokens.next();
  DrawLine draw{graph == "Graph2" ? Page::graph2 : Page::graph1, std::string(trimmed(tokens.rest())), {}};
  if (const std::size_t blank = draw.file.find_last_of(" \t"); blank != std::string::npos) {
    if (const auto size = parse_picture_size(std::string_view(draw.file).substr(blank + 1))) {
      draw.size = *size;
      draw.file = trimmed(std::string_view(draw.file).substr(0, blank));
    }
  }
  if ((graph != "Graph1" && graph != "Graph2") || draw.file.empty()) {
    return UnknownLine{"expected: Draw Graph1 FILE [WIDTHxHEIGHT], or Graph2"};
  }
  return draw;
}

std::optional<GridCell> parse_cell(std::string_view text) {
  const std::size_t comma = text.find(',');
  if (comma == std::string_view::npos) return std::nullopt;
  const auto column = parse_int32(text.substr(0, comma));
  const auto row = parse_int32(text.substr(comma + 1));
  if (!column || !row) return std::nullopt;
  return GridCell{*column, *row};
}

/// The next two tokens, "GRID COLUMN,ROW".
std::optional<CellName> take_cell_name(Tokens& tokens) {
  const std::string_view grid = tokens.next();
  const auto cell = parse_cell(tokens.next());
  if (!cell) return std::nullopt;
  return CellName{std::string(grid), *cell};
}

ScriptLine parse_cell_line(std::string_view rest) {
  Tokens tokens(rest);
  auto place = take_cell_name(tokens);
  if (!place) return UnknownLine{"expected: Cell GRID COLUMN,ROW TEXT"};
  const std::string_view text = tokens.rest();
  return CellLine{std::move(*place), std::string(text.empty() ? text : text.substr(1))};
}

ScriptLine parse_key_line(std::string_view rest) {
  Tokens tokens(rest);
  auto place = take_cell_name(tokens);
  const std::string_view key = tokens.next();
  if (!place || key.empty() || !tokens.at_end()) return UnknownLine{"expected: Key GRID COLUMN,ROW KEY"};
  return KeyLine{std::move(*place), std::string(key)};
}

ScriptLine parse_click_line(std::string_view rest) {
  const std::size_t colon = rest.find(':');
  Tokens tokens(rest.substr(0, colon));
  auto place = take_cell_name(tokens);
  const auto click = click_named(tokens.next());
  if (!place || !click || !tokens.at_end()) {
    return UnknownLine{"expected: Click GRID COLUMN,ROW left, or right, or double"};
  }
  auto answers = answers_behind(rest, colon);
  if (!answers) return UnknownLine{empty_answer};
  return ClickLine{std::move(*place), *click, std::move(*answers)};
}

ScriptLine parse_comment(std::string_view rest) { return CommentLine{std::string(rest)}; }
ScriptLine parse_echo(std::string_view rest) { return EchoLine{std::string(rest)}; }

struct Verb {
  std::string_view word;
  ScriptLine (*parse)(std::string_view rest);
};

constexpr std::array<Verb, 11> verbs{{
    {"Set", parse_set},
    {"Check", parse_check},
    {"Radio", parse_radio},
    {"Comment", parse_comment},
    {"Echo", parse_echo},
    {"Break", parse_break},
    {"Print", parse_print},
    {"Draw", parse_draw},
    {"Cell", parse_cell_line},
    {"Key", parse_key_line},
    {"Click", parse_click_line},
}};

}  // namespace

ScriptLine parse_line(std::string_view line) {
  const std::string_view word = Tokens(line).next();
  for (const Verb& verb : verbs) {
    if (word == verb.word) return verb.parse(behind_word(line, word));
  }
  const std::size_t slash = line.find('/');
  if (slash == std::string_view::npos) return UnknownLine{"no such line"};
  return parse_command(line, slash);
}

}  // namespace kov
