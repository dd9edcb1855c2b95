// The script over puzzle 1: eight pictures that explain the game, each at its moment and place, while the beams stand
// still. A click on the right spot of a picture goes on, and three of the pictures then act on a beam for the player.
#pragma once

#include <cstddef>
#include <cstdint>

#include "game/VMain.h"

namespace prismfall {

// Tells the backend where the pictures ask for a press, so that keys can do it too. Once, before the window is shown.
void MarkTutorialSpots(VMain& main);

// At the start of a tick with the tutorial on: brings up the picture whose moment has come and stops LineExtender.
void TriggerTutorial(VMain& main);

// A press on a tutorial picture (0 for PictTut1) at (X, Y) of that picture. Outside its spots nothing happens.
void PictTut_MouseDown(VMain& main, std::size_t picture, MouseButton Button, float X, float Y);

// With `Action` 0 the tutorial ends and the puzzle goes on as any other; otherwise what the picture asked for is done,
// and the game goes on to the next picture. A game that stands still, since the window was minimised, goes on as well.
void ContinueTutorial(VMain& main, int Action);

void HideTutorialPictures(VMain& main);

}  // namespace prismfall
