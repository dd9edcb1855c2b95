// The table of the ten best Arcade games, the dialog VHighScore2 that shows it, and the dialog's two Clear buttons. The
// table is part of the saved settings.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Enters the finished game from Score, GameStartLevel and Level, below older equal scores, if it is high enough. The
// tenth row is dropped. A score of 0 never enters.
void SaveScore(VMain& main);

// Fills the dialog with the current values and shows it; returns when it has been closed. Where games are kept, a press
// on a row closes it and shows that game, unless another is in progress.
void ShowHighScores(VMain& main);

// Clears the table, HighScore and the dialog's display, without asking.
void ClearScores(VMain& main);

// Forgets which puzzles have been solved, without asking, and redraws an open puzzle menu.
void ClearPuzzleProgress(VMain& main);

}  // namespace prismfall
