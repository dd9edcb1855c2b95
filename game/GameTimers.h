// The three timers that a game runs on, started and stopped together.
#pragma once

#include "state/VMain.h"

namespace prismfall {

// Start and stop LineExtender and LineDeleter, which grow and remove beams. New beams come in an Arcade game alone, by
// LineCreator, which an Arcade game starts for itself.
void StartBeamTimers(const VMain& main);
void StopBeamTimers(const VMain& main);

// Stops all three.
void StopGameTimers(const VMain& main);

}  // namespace prismfall
