// Plays a puzzle's solution script: at the start of a tick it does what the player's clicks would do at that moment.
#pragma once

#include <span>

#include "game/PuzzleCatalogue.h"
#include "game/VMain.h"

namespace prismfall {

// Fires, for each growing beam, the first step of the script that names the beam's number and the exact height of its
// head. Which steps have fired is not kept: a growing head is at each height for one tick only.
void PlaySolutionStep(VMain& main, std::span<const SolutionStep> script);

}  // namespace prismfall
