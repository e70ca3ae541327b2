#include "algadd/run_limits.h"

namespace kov {

RunLimits RunLimits::read(const cphclass& cph) {
  constexpr std::int64_t bytes_per_kilobyte = 1000;
  const std::int64_t display_step = cph.kmi("Algadd_mem1_DisplayAfterKB") * bytes_per_kilobyte;
  return {.display = display_step,
          .display_step = display_step,
          .tracking = cph.kmi("Algadd_TM_DelSmallestAfterKB") * bytes_per_kilobyte,
          .maximum = cph.kmi("MaxAllowedMemOccupationInKB") * bytes_per_kilobyte,
          .first_deletable_row = cph.kmi("Algadd_TM_DelAlsoTillRow0") != 0 ? 0 : 1};
}

}  // namespace kov
