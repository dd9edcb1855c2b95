// Running a beam forward in a game, whoever does it: the player, the tutorial or a solution.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Runs the beam to its end, and does what follows if that was at another beam: its sound, which is not waited for, and
// in a scored game its points and the blue line, painted again.
Outcome RunForward(VMain& main, CLine& beam);

// Whether a puzzle is in play and all of its beams are dying.
bool IsPuzzleCleared(const VMain& main);

}  // namespace prismfall
