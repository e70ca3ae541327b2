#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "lattice/part_form.h"

namespace kov {

/// The denominator over which every part is an integer within the exact range; where all are integers
/// already, 1 and any integer. Nothing when there is none.
std::optional<std::int32_t> common_denominator(std::span<const Fraction32> parts) noexcept;

}  // namespace kov
