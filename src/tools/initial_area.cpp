#include "tools/initial_area.h"

#include "text/integers.h"
#include "tools/area_walk.h"

namespace kov {
namespace {

const char* dimension_text(std::int32_t dimcount) {
  switch (dimcount) {
    case 2:
      return "along coordinates k1,k2 (resp x,y)";
    case 3:
      return "along coordinates k1,k2,k3 (resp x,y,z)";
    default:
      return "along coordinate k1 (resp x)";
  }
}

const char* sign_text(std::int32_t mode) {
  switch (mode) {
    case 1:
      return "+-1 (sign alternation when crossing k1 = x = 0)";
    case 2:
      return "+-1 (sign alternation when crossing k1,k2 = x,y = 0)";
    case 3:
      return "+-1 (sign alternation when crossing k1,k2,k3 = x,y,z = 0)";
    case 4:
      return "-1 when k1+k2+k3 = x+y+z is odd, else with +1";
    default:
      return "+1";
  }
}

/// Products are floating: a rounding changes no sign, and nothing overflows.
std::int32_t sign_of(double product) { return product == 0.0 ? 0 : product < 0.0 ? -1 : 1; }

}  // namespace

InitialArea InitialArea::read(const cphclass& cph) {
  return {.maxcoo = cph.kmi("N0iniarea_maxcoo"),
          .square_round = cph.kmi("N0iniarea_square_round"),
          .dimcount = cph.kmi("N0iniarea_dimcount"),
          .stepdist = cph.kmi("N0iniarea_stepdist"),
          .sign_alternation = cph.kmi("N0iniarea_sign_alternation")};
}

std::string InitialArea::question() const {
  return std::string("According to the options N0iniarea_... a") + (square_round == 0 ? "square" : "round") +
         " area with max. border distance" + int_text(maxcoo) + " from zero will be initializated" +
         dimension_text(dimcount) + " with" + sign_text(sign_alternation) + ". The stepping distance is" +
         int_text(stepdist) + ".\n\nDo you want this?";
}

std::int32_t area_quantity(const InitialArea& area, std::int64_t x, std::int64_t y, std::int64_t z) {
  const auto fx = static_cast<double>(x);
  const auto fy = static_cast<double>(y);
  const auto fz = static_cast<double>(z);
  switch (area.sign_alternation) {
    case 1:
      return sign_of(fx);
    case 2:
      return sign_of(fx * fy);
    case 3:
      return sign_of(fx * fy * fz);
    case 4:
      return (x + y + z) % (2 * std::int64_t{area.stepdist}) == 0 ? -1 : 1;
    default:
      return 1;
  }
}

AreaLimits AreaLimits::read(const cphclass& cph) {
  constexpr std::int64_t bytes_per_kilobyte = 1000;
  return {.bytes = cph.kmi("MaxAllowedMemOccupationInKB") * bytes_per_kilobyte,
          .visits_per_display = cph.kmi("Sums_EntryCountPerDisplay")};
}

AreaEnd fill_initial_area(Lmap& lmap, const InitialArea& area, const Lk& reference, const AreaLimits& limits,
                          Progress& progress) {
  lmap.clear();
  return AreaWalk(lmap, area, reference, limits, progress).run();
}

}  // namespace kov
