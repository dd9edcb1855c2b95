// The keys that play. Esc is a window's own: its keyDown handler gets it.
#pragma once

#include <cstdint>

namespace prismfall {

// The numbers are what backends and pages pass on.
enum class Key : std::int16_t {
    None = 0,
    Tab = 9,
    Enter = 13,
    Escape = 27,
    Space = 32,
    PageUp = 33,
    PageDown = 34,
    Left = 37,
    Up = 38,
    Right = 39,
    Down = 40,
    G = 'G',
    M = 'M',
    P = 'P',
    R = 'R',
    F1 = 112,
    F2 = 113,
    ShiftTab = 265,
};

}  // namespace prismfall
