// The player goes on with a game that another program on another machine has brought to its present moment, such as one
// that was recorded.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Makes the elements of a main window look like those of another.
void ShowSameElements(VMain& main, const VMain& from);

// Moves the game of `from`, outside of all handlers, into `main`: beams, numbers, timers and elements, but nothing that
// was painted. It goes on at the pace of the extras with the music of its screen; a solution becomes the player's. The
// score of such a game enters no table, and a puzzle that it solves does not count as solved.
void TakeOverGame(VMain& main, VMain& from);

}  // namespace prismfall
