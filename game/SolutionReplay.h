// Plays a puzzle's solution script: at the start of a tick it does what the player's clicks would do at that moment.
#pragma once

#include <span>

#include "game/PuzzleCatalogue.h"
#include "game/VMain.h"

namespace prismfall {

// Carries out, for each growing beam, the first step of the script with the beam's number and the exact height of its
// head. It need not remember which steps are done: a growing head is at each height for only one tick.
void PlaySolutionStep(VMain& main, std::span<const SolutionStep> script);

}  // namespace prismfall
