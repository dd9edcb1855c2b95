// Lets the player take over a game that has been played so far on another machine, such as a recorded one.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Makes the elements of a main window look like those of another.
void ShowSameElements(VMain& main, const VMain& from);

// Moves the game of `from` into `main`: beams, numbers, timers and elements, but nothing painted. Call it outside all
// handlers. The game continues at the pace set in the extras, with its screen's music; a solution becomes the player's
// to play. Its score enters no table, and a puzzle it solves does not count as solved.
void TakeOverGame(VMain& main, VMain& from);

}  // namespace prismfall
