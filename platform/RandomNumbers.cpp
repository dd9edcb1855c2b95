#include "platform/RandomNumbers.h"

namespace prismfall {

namespace {

constexpr std::uint64_t kStep = 0x9E3779B97F4A7C15U;  // odd, so that states repeat only after 2^64 steps

// Spreads every bit of a state over the whole result.
std::uint64_t Mixed(std::uint64_t bits) {
    bits = (bits ^ bits >> 30) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ bits >> 27) * 0x94D049BB133111EBU;
    return bits ^ bits >> 31;
}

}  // namespace

void RandomNumbers::Begin(std::uint64_t number, std::int64_t moment) {
    state = number;
    origin = moment;
}

void RandomNumbers::Seed(std::int64_t moment) {
    state = Mixed(state + kStep) ^ Mixed(static_cast<std::uint64_t>(moment - origin));
}

double RandomNumbers::Next() {
    state += kStep;
    constexpr double kUnit = 1.0 / (1ULL << 53U);
    return static_cast<double>(Mixed(state) >> 11U) * kUnit;
}

}  // namespace prismfall
