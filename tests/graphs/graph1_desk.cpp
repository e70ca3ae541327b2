#include "graphs/graph1_desk.h"

#include "numbers/floating_text.h"
#include "text/integers.h"

namespace kov {

std::string Graph1Desk::columns(std::size_t curve) const {
  std::string text;
  const std::vector<double>& values = par.curve(curve).at;
  for (std::size_t column = 0; column < values.size(); ++column) {
    if (values[column] == 0) continue;
    text += (text.empty() ? "" : " ") + int_text(static_cast<std::int64_t>(column)) + ":" +
            exact_text(values[column]);
  }
  return text;
}

}  // namespace kov
