// Turns a row of the catalogue into a game: to be played, or to be watched being solved.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Lays out CurrentPuzzle, or with `nextPuzzle` the one after it (after the last, the last again), and starts its music.
// A normal start then waits for CmdStart, with all timers of the game off, and turns the tutorial on for puzzle 1 and
// off for all others. With `Solution` it runs at once as a solution replay.
void StartPuzzleGame(VMain& main, bool nextPuzzle, bool Solution);

// Links the beams of a layout as if it had been played: chains, beams stopped head on head, and beams stopped by
// another; the stopped heads are drawn back a little.
void LinkPuzzleLines(Field& field);

}  // namespace prismfall
