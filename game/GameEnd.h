// How a lost game ends: a beam has reached the ground.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Stops the game's timers, enters the score, stops the music, plays the game-over sound to its end and greys out the
// beams. Then an Arcade game shows the high scores and the main menu, a puzzle its result. Meanwhile the main window
// takes no input except its close box.
void EndGame(VMain& main);

// Turns all beams grey from the floor upwards, in bands of 20 pixels that take 10 ms each; events run meanwhile.
void GameOverSweep(VMain& main);

}  // namespace prismfall
