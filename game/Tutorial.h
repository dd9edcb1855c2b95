// The tutorial in puzzle 1: eight pictures that explain the game, each at its moment and place, while the beams stand
// still. A click on the right spot of a picture continues, and three of the pictures then act on a beam for the player.
#pragma once

#include <cstddef>
#include <cstdint>

#include "game/VMain.h"

namespace prismfall {

// Tells the backend where the pictures prompt for a press, so that keys can do it too. Called once, before the window
// is shown.
void MarkTutorialSpots(VMain& main);

// At the start of a tick with the tutorial on: shows the picture whose moment has come and stops LineExtender.
void TriggerTutorial(VMain& main);

// A press on a tutorial picture (0 for PictTut1) at (X, Y) in that picture. Does nothing outside its spots.
void PictTut_MouseDown(VMain& main, std::size_t picture, MouseButton Button, float X, float Y);

// With `Action` 0 the tutorial ends and the puzzle continues like any other; otherwise does what the picture asked for,
// and the game goes on to the next picture. A game that was paused by minimising the window also resumes.
void ContinueTutorial(VMain& main, int Action);

void HideTutorialPictures(VMain& main);

}  // namespace prismfall
