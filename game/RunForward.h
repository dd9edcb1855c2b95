// Running a beam forward in a game, on behalf of the player, the tutorial or a solution.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Runs the beam to its end. If it ended at another beam, plays the sound without waiting for it, and in a scored game
// adds the points and repaints the blue line.
Outcome RunForward(VMain& main, CLine& beam);

// Whether a puzzle is being played and all of its beams are dying.
bool IsPuzzleCleared(const VMain& main);

}  // namespace prismfall
