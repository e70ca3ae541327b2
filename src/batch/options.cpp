#include "batch/options.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace kov {
namespace {

struct Flag {
  char letter;
  std::string_view word;
  bool Options::*member;
};

constexpr char no_letter = '\0';

// clang-format off
constexpr std::array<Flag, 5> flags{{
    {'y',       "yes",           &Options::yes},
    {'k',       "keep-going",    &Options::keep_going},
    {'q',       "quiet",         &Options::quiet},
    {no_letter, "every-caption", &Options::every_caption},
    {no_letter, "trace",         &Options::trace},
}};
// clang-format on

class Parser {
 public:
  explicit Parser(std::span<const char* const> arguments) : rest_(arguments) {}

  Options parse() {
    while (options_.mode == Options::Mode::run && !rest_.empty()) take(next());
    if (options_.lines.empty() && options_.scripts.empty()) options_.scripts.emplace_back("-");
    return options_;
  }

 private:
  std::string_view next() {
    const std::string_view argument = rest_.front();
    rest_ = rest_.subspan(1);
    return argument;
  }

  void take(std::string_view argument) {
    if (argument == "--") {
      while (!rest_.empty()) options_.scripts.emplace_back(next());
    } else if (argument.substr(0, 2) == "--") {
      take_word(argument.substr(2));
    } else if (argument.size() > 1 && argument.front() == '-') {
      take_letters(argument.substr(1));
    } else {
      options_.scripts.emplace_back(argument);
    }
  }

  void take_word(std::string_view text) {
    const std::size_t equals = text.find('=');
    const std::string_view word = text.substr(0, equals);
    const bool has_value = equals != std::string_view::npos;
    if (word == "command") {
      options_.lines.emplace_back(has_value ? text.substr(equals + 1) : value_of("--command"));
      return;
    }
    if (has_value) throw option_error("option --" + std::string(word) + " takes no value");
    const auto flag = std::find_if(flags.begin(), flags.end(), [&](const Flag& f) { return f.word == word; });
    if (flag != flags.end()) {
      options_.*flag->member = true;
    } else if (word == "help" || word == "version") {
      options_.mode = word == "help" ? Options::Mode::help : Options::Mode::version;
    } else {
      throw option_error("unknown option --" + std::string(word));
    }
  }

  void take_letters(std::string_view letters) {
    while (!letters.empty() && options_.mode == Options::Mode::run) {
      const char letter = letters.front();
      letters.remove_prefix(1);
      if (letter == 'c') {
        options_.lines.emplace_back(letters.empty() ? value_of("-c") : letters);
        return;
      }
      take_letter(letter);
    }
  }

  void take_letter(char letter) {
    const auto flag =
        std::find_if(flags.begin(), flags.end(), [&](const Flag& f) { return f.letter == letter; });
    if (letter != no_letter && flag != flags.end()) {
      options_.*flag->member = true;
    } else if (letter == 'h' || letter == 'V') {
      options_.mode = letter == 'h' ? Options::Mode::help : Options::Mode::version;
    } else {
      throw option_error(std::string("unknown option -") + letter);
    }
  }

  std::string_view value_of(std::string_view option) {
    if (rest_.empty()) throw option_error("option " + std::string(option) + " needs a line");
    return next();
  }

  std::span<const char* const> rest_;
  Options options_;
};

}  // namespace

Options parse_options(std::span<const char* const> arguments) { return Parser(arguments).parse(); }

std::string help_text() {
  return R"(Usage: kovbatch [OPTION]... [SCRIPT]...

The workbench for algorithms on multidimensional numerical lattices, without a
window: carries out commands line by line.

  SCRIPT                a file of lines; "-" is standard input, which is also
                        read when neither a line nor a script is given
  -c, --command LINE    carry out LINE; may be repeated; lines given so run
                        before the scripts
  -y, --yes             answer Yes to every question that a line leaves
                        unanswered
  -k, --keep-going      go on after a line that failed
  -q, --quiet           no progress on standard error
      --every-caption   report every caption of a long operation, not ten a
                        second at most
      --trace           report each line before it is carried out
  -h, --help            show this help and end
  -V, --version         show the version and end

Lines:
  MENU/ITEM [: ANSWER | ANSWER ...]     a command of a menu and the answers to
                                        its dialogs ("Print menu" lists all)
  Set KEYWORD VALUE                     set a program parameter
  Check NAME on|off                     set a check box
  Radio Graph2 INDEX                    choose a radio button, 0 to 9
  Comment TEXT                          append a line to the comment
  Print WHAT [> FILE]                   status, caption, comment, lattice, menu,
                                        a page's grid, or "label" and a page
  Draw GRAPH FILE [WIDTHxHEIGHT]        write the picture of Graph1 or Graph2, as
                                        .png or .svg
  Cell GRID COLUMN,ROW TEXT             replace the text of a grid's cell
  Key GRID COLUMN,ROW KEY               press a key at a cell: one character,
                                        Enter, Esc, Tab, Up, Down, PageUp,
                                        PageDown, Ctrl+PageUp, Ctrl+PageDown
  Click GRID COLUMN,ROW left|right|double [: ANSWER | ANSWER ...]
                                        the mouse at a cell
  Break N                               the next line that runs anything meets
                                        Break at its N-th check
  Echo TEXT                             write TEXT
  ; TEXT                                a remark

Grids: Slq, Sldim, Sllist, SlAlgadd, Slds1, Slsums1, Slsums2, Slg2a, Slconfig;
columns and rows count from 0, headings included. Lines about a grid show its
page.
Pages with a label: Algadd, Sums1, Sums2, Graph1, Graph2.

Exit status: 0 every line was carried out, 1 a line failed, 2 the options or a
script could not be read, 130 interrupted.
)";
}

std::string version_text() { return "kovbatch " KOV_VERSION "\n"; }

}  // namespace kov
