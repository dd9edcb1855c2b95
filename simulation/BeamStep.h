// One step of one growing beam, and what it ran into.
#pragma once

#include <cstdint>

#include "state/VMain.h"

namespace prismfall {

// What becomes of a beam in one step.
enum class Growth {
    GoesOn,   // it has moved, waits for its turn, or was stopped by another beam
    AtWall,   // it has bounced: a new segment runs the other way
    AtFloor,  // it would step onto the ground; nothing has changed
};

// Moves a beam one pixel down and one sideways if it grows and if it is its turn (in the entry zone every second tick),
// and paints that step. A beam that meets another one stops there and is destroyed together with one of its own colour;
// that sounds, adds 1 to `hits`, and enters the Multi values of the state. The last hit of a puzzle waits for its
// sound.
Growth GrowLine(VMain& main, CLine& beam, std::int16_t& hits);

}  // namespace prismfall
