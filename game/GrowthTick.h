// The clock of the game: one tick moves every growing beam one step, finds out what it ran into, and ends the game when
// a beam reaches the floor. Who starts and stops the timer is told in game/GameControl.
#pragma once

#include "state/VMain.h"

namespace prismfall {

void LineExtender_Timer(VMain& main);

// One tick. A wall or the floor cuts it short: the beams behind in Lines do not move, and what had collided scores
// nothing.
void ExtendLines(VMain& main);

// All beams turn grey from the floor upwards, in bands of 20 pixels that take 10 ms each.
void GameOverSweep(VMain& main);

}  // namespace prismfall
