// The growth tick: the tutorial or a solution acts first, then every growing beam takes a step; if a beam reaches the
// ground, the game ends. GameControl starts and stops its timer.
#pragma once

#include "game/VMain.h"

namespace prismfall {

void LineExtender_Timer(VMain& main);

// A new beam for an Arcade game.
void LineCreator_Timer(VMain& main);

// One tick. A wall or the floor cuts it short: the following beams in Lines do not move, and collisions earlier in the
// tick score nothing. After the last collision of a puzzle it waits for the sound.
void ExtendLines(VMain& main);

}  // namespace prismfall
