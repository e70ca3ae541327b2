#include "graphs/ask_ny.h"

#include "interact/integer_question.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr const char* keyword = "Graph2a_ny";

constexpr const char* prompt =
    "Graph 2 mode is dependent of ny:\n"
    "ny <0: Curves along x for many y,\n"
    "  frontal curve 1 in y_min\n"
    "ny >0: Curves along x for many y,\n"
    "  frontal curve 1 in y_max\n"
    "ny==0: 2d graph along x and y\n"
    "\n"
    "To set ny to a new integer i";

}  // namespace

std::string Button_g2a_ny_caption(const cphclass& cph) { return "set ny:" + int_text(cph.kmi(keyword)); }

bool Button_g2a_nyClick(cphclass& cph, User user) {
  const auto found = cph.kmap().find(keyword);
  if (found == cph.kmap().end()) {
    user.messages.error("Button_g2a_nyClick: Key not found");
    return false;
  }
  const MMI ny = found->second;
  const auto chosen = ask_integer(user.questions, "Input ny", prompt, ny.i, {ny.min, ny.max});
  return chosen && *chosen != ny.i && cph.setkmi_1(keyword, *chosen);
}

}  // namespace kov
