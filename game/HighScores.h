// The table of the ten best Arcade games, the dialog VHighScore2 that shows it, and the two clearings that it offers.
// The table is part of the settings, which are kept from run to run.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Enters the finished game from Score, GameStartLevel and Level, below older equal scores, if it is high enough. The
// tenth row drops out. A score of 0 never enters.
void SaveScore(VMain& main);

// Fills the dialog anew and shows it; returns when it has closed.
void ShowHighScores(VMain& main);

// Empties the table, HighScore and what the dialog shows, with no question asked.
void ClearScores(VMain& main);

// Forgets which puzzles have been solved, with no question asked, and redraws an open puzzle menu.
void ClearPuzzleProgress(VMain& main);

}  // namespace prismfall
