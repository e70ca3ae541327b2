#pragma once

#include <cstdint>

namespace kov {

/// The range of every exact integer result, one short of the machine range on both sides and
/// deliberately asymmetric.
inline constexpr std::int32_t nu_max_int = INT32_MAX - 1;
inline constexpr std::int32_t nu_min_int = INT32_MIN + 1;

/// Start-up check of the lower limit; throws program_error "nu_min_int<0 necessary" when it is not
/// negative.
void require_negative_minimum(std::int32_t minimum);

/// Set by the checked operations when a result leaves the exact range. Every exact operation clears
/// it before its checked steps and reads it after them; one flag a thread.
inline constinit thread_local bool ratyp_overflow = false;

/// a + b, or 1 with ratyp_overflow set. Operands of opposite sign (zero counts as either) are not
/// tested against the range: such a sum always fits in 32 bits.
std::int32_t add_checked(std::int32_t a, std::int32_t b);

/// a * b, or 1 with ratyp_overflow set.
std::int32_t mul_checked(std::int32_t a, std::int32_t b);

/// Euclid's greatest common divisor of |a| and |b|; gcd(a, 0) = |a|. Unsigned, since the magnitude of
/// the smallest 32-bit integer does not fit in a signed one.
std::uint32_t gcd(std::int32_t a, std::int32_t b);

}  // namespace kov
