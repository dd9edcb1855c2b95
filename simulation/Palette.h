// A second set of beam colours, shown instead of LineColors in Playfield.h. Any two colours of a row can be told apart
// by people who lack one of the three kinds of cones, and all of them stand out from black.
#pragma once

#include <array>

#include "platform/Element.h"

namespace prismfall {

inline constexpr std::array<Colour, 4> kClearColors = {0xEB5A6E, 0xAAC300, 0x0F18F0, 0x64FFFF};
inline constexpr std::array<Colour, 4> kClearColorsUpper = {0xF07895, 0xDCDDA1, 0x423CE1, 0x96F5FF};
inline constexpr std::array<Colour, 4> kClearColorsLower = {0xC94650, 0x8CAB00, 0x0638A0, 0x3CEAE1};

}  // namespace prismfall
