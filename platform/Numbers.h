// The game's arithmetic: sums that stop at the ends of the 16-bit range instead of wrapping, and the one way of
// rounding.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace prismfall {

// The nearest 16-bit value.
constexpr std::int16_t Saturated(std::int64_t value) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

// Rounds to the nearest integer, ties to even, and saturates. `value` must not be NaN.
inline std::int16_t Rounded(double value) {
    return Saturated(static_cast<std::int64_t>(std::nearbyint(std::clamp(value, -1e6, 1e6))));
}

}  // namespace prismfall
