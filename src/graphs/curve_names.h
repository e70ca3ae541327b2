#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace kov {

/// The caption of a range's curves: "SR1:" and "SR2:", "SR1/cnt:" and "SR2/cnt:" while the curves are divided
/// by the number of points (Graph1_divmode 1), and for Range 1 "SR1/SR2:" while they are divided by those of
/// Range 2 (2).
std::string curve_group_caption(std::size_t range, std::int32_t divmode);

/// "qre", "qim", "qq", "qa", "cntAt", by G1Quantity.
std::string quantity_name(std::size_t quantity);

/// The name of a curve by its index in G1Checks: "SR1: qre", "SR2/cnt: cntAt".
std::string curve_name(std::size_t index, std::int32_t divmode);

}  // namespace kov
