// The three timers that a game runs on: started and stopped together, and as fast as the level.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Start and stop LineExtender and LineDeleter, which grow and remove beams. New beams come in an Arcade game alone, by
// LineCreator, which an Arcade game starts for itself.
void StartBeamTimers(const VMain& main);
void StopBeamTimers(const VMain& main);

// Stops all three.
void StopGameTimers(const VMain& main);

// Sets the intervals of LineCreator and LineExtender by Level: 2500 and 75 ms at level 1, a fifth less at each level
// above, never less than 1 ms.
void SetLevelSpeed(const VMain& main);

}  // namespace prismfall
