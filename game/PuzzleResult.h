// The dialog at the end of a puzzle: the verdict, and what to do next.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Shows VPuzzleResult. A solved puzzle offers the next one (the button is disabled after the last) and the menu, a
// failed one its solution, the menu and another try. Returns when the dialog is closed and the player's choice has been
// carried out.
void ShowPuzzleResult(VMain& main, bool Solved);

}  // namespace prismfall
