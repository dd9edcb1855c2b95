// The clock of the game: one tick lets every growing beam take its step, after the tutorial and a solution have had
// their turn, and ends the game when a beam reaches the ground. GameControl starts and stops its timer.
#pragma once

#include "game/VMain.h"

namespace prismfall {

void LineExtender_Timer(VMain& main);

// A new beam for an Arcade game.
void LineCreator_Timer(VMain& main);

// One tick. A wall or the floor cuts it short: the beams behind in Lines do not move, and what had collided scores
// nothing. The last collision of a puzzle waits for its sound.
void ExtendLines(VMain& main);

}  // namespace prismfall
