// How beams come into play: at random columns of the spawn grid, and as the next segment of a chain at every bend and
// wall. And how fast a level is.
#pragma once

#include <cstdint>

#include "state/VMain.h"

namespace prismfall {

// Makes a beam and appends it to Lines; paints nothing. With `oLine` it is the next segment of that beam's chain: it
// starts at its head, runs the other way and is linked to it both ways; `oLine` itself is left as it runs. Without it,
// it is a random beam in a free column at the height `StartY`, which is not read otherwise; if no column can be had
// there is no beam, and the result is nothing.
// With `Simulate` the beam stands in no list and lives until the look-ahead ends.
CLine* CreateLine(VMain& main, CLine* oLine, Boolean Simulate, std::int16_t StartY);

// Stops a beam where it is and goes on with the next segment of its chain: a bend.
CLine& SplitLine(VMain& main, CLine& oLine);

// Sets the intervals of LineCreator and LineExtender by Level: 2500 and 75 ms at level 1, a fifth less at each level
// above, never less than 1 ms.
void SetLevelSpeed(const VMain& main);

// A new beam for an Arcade game.
void LineCreator_Timer(VMain& main);

}  // namespace prismfall
