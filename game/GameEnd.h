// How a lost game ends: a beam has reached the ground.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Stops the game's timers, enters the score, stops the music, plays the sound of the end to its length and greys the
// beams out. Then an Arcade game shows the high scores and the main menu, a puzzle its result. All the while the main
// window takes no input but its close box.
void EndGame(VMain& main);

// All beams turn grey from the floor upwards, in bands of 20 pixels that take 10 ms each; events run meanwhile.
void GameOverSweep(VMain& main);

}  // namespace prismfall
