#include "graphs/too_few_pixels.h"

#include <string>

#include "numbers/floating_text.h"

namespace kov {

void warn_of_too_few_pixels(std::string_view axis, double pix_per_icoo, std::string_view consequence,
                            const cphclass& cph, Messages& messages) {
  constexpr int digits = 6;
  if (pix_per_icoo >= 1 || cph.kmi("Graph_BeepMsgIfTooLessPixel") == 0) return;
  messages.warning("Warning:\n too less pixel along " + std::string(axis) + "\n (pix_per_icoo = " +
                   floating_text(pix_per_icoo, digits) + " < 1)\n" + std::string(consequence));
}

}  // namespace kov
