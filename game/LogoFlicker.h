// The main menu's logo: its last letter comes and goes at random times, with a sound.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Shows or hides the letter, sets the time of the next change, lets events run, and plays the sound to its end.
void TimerA_Timer(VMain& main);

}  // namespace prismfall
