// Everything that survives from one run to the next: options, score table, puzzle progress. Read once at start-up,
// written as a whole when the program ends; in between all of it lives in the state alone.
#pragma once

#include "state/VMain.h"

namespace prismfall {

// Each reads its part of the store into the state. What is missing, or cannot be read as its type, takes its default.
void ReadStartSettings(VMain& main);  // first run, start level, score table
void ReadAudioSettings(VMain& main);  // music, effects
void ReadSolvedPuzzles(VMain& main);

// Writes all 79 values at once.
void SaveSettings(VMain& main);

}  // namespace prismfall
