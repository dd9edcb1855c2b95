// Everything that survives from one run to the next: options, score table, puzzle progress. Read once at start-up,
// written when the program ends; in between all of it lives in the state alone. Several runs may share a store: what
// one of them saves is never undone by another that has not touched it.
#pragma once

#include "state/VMain.h"

namespace prismfall {

// Each reads its part of the store into the state. What is missing, or cannot be read as its type, takes its default.
void ReadStartSettings(VMain& main);  // first run, start level, score table
void ReadAudioSettings(VMain& main);  // music, effects
void ReadSolvedPuzzles(VMain& main);

// Brings what this run has changed into the store, and what the store lacks, so that all 79 values stand in it. If the
// store's score table is not the one that this run knows, the games of this run enter that table (an empty one, if this
// run has cleared it), and it becomes this run's too. If the store takes nothing, nothing is forgotten: the next call
// tries again. May be called any number of times.
void SaveSettings(VMain& main);

}  // namespace prismfall
