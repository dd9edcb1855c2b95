// Plays a puzzle's solution script: at the start of a tick it does what the player's clicks would do at that moment.
#pragma once

#include "state/VMain.h"

namespace prismfall {

// Fires, for each growing beam, the first step of CurrentPuzzle's script that names the beam's number and the exact
// height of its head. Which steps have fired is not kept: a growing head stands at each height for one tick only.
void PlaySolutionStep(VMain& main);

}  // namespace prismfall
