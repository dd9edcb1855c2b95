// The main menu and the score panels: what is shown and hidden when a screen comes or goes, and the flicker of the
// logo. Beams, music and the game's timers are left as they are.
#pragma once

#include "state/VMain.h"

namespace prismfall {

// Brings the main menu up, clearing the surface and setting GameMode, or takes it away. Both hide the score panels, the
// marks of the puzzle menu and the game's buttons.
void ShowMainMenu(VMain& main, Boolean state);

// Shows or hides the panel that fits GameMode and hides the other.
void ShowScoreboard(VMain& main, Boolean state);

void HideSolvedLabels(VMain& main);

// The last letter of the logo comes and goes at random times, with a sound.
void TimerA_Timer(VMain& main);

}  // namespace prismfall
