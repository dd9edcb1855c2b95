// The three timers that drive a game. They start and stop together, and their speed depends on the level.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Start and stop LineExtender and LineDeleter, which grow and remove beams. Only an Arcade game gets new beams, from
// LineCreator, which it starts itself.
void StartBeamTimers(const VMain& main);
void StopBeamTimers(const VMain& main);

// Stops all three.
void StopGameTimers(const VMain& main);

// Sets the intervals of LineCreator and LineExtender by Level: 2500 and 75 ms at level 1, a fifth less for each further
// level, at least 1 ms.
void SetLevelSpeed(const VMain& main);

}  // namespace prismfall
