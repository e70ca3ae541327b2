#include "graphs/curve_names.h"

#include <array>

#include "graphs/g1par.h"

namespace kov {
namespace {

constexpr std::array<const char*, g1_quantity_count> quantity_names = {"qre", "qim", "qq", "qa", "cntAt"};

}  // namespace

std::string curve_group_caption(std::size_t range, std::int32_t divmode) {
  constexpr std::int32_t by_count = 1;
  constexpr std::int32_t by_range2 = 2;
  const std::string name = range == 0 ? "SR1" : "SR2";
  if (divmode == by_count) return name + "/cnt:";
  if (divmode == by_range2 && range == 0) return "SR1/SR2:";
  return name + ":";
}

std::string quantity_name(std::size_t quantity) { return quantity_names[quantity]; }

std::string curve_name(std::size_t index, std::int32_t divmode) {
  return curve_group_caption(index / g1_quantity_count, divmode) + " " +
         quantity_name(index % g1_quantity_count);
}

}  // namespace kov
