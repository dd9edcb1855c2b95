// The main menu's logo: its last letter flickers at random times, with a sound.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Shows or hides the letter, schedules the next change, lets events run, and plays the sound to its end.
void TimerA_Timer(VMain& main);

}  // namespace prismfall
