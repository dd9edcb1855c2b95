// What many topics ask and do about the game that is on: whether it is a puzzle, and its timers.
#pragma once

#include "state/VMain.h"

namespace prismfall {

// A puzzle that is played or being solved by the program.
bool IsPuzzle(const VMain& main);

// The timers that grow and remove beams; new ones come in an Arcade game alone, by LineCreator.
void StartBeamTimers(VMain& main);
void StopBeamTimers(VMain& main);

// All three timers of a game.
void StopGameTimers(VMain& main);

}  // namespace prismfall
