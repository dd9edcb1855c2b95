// Points and levels of an Arcade game, and the number that floats up next to a collision of several beams.
#pragma once

#include <cstdint>

#include "game/VMain.h"

namespace prismfall {

// The collisions of one moment: how many, and the sums of the coordinates of their heads.
struct Hits {
    std::int16_t N = 0;
    std::int16_t MultiSumX = 0;
    std::int16_t MultiSumY = 0;
};

// Adds the collision of a growing beam, whose color and direction become those of the pop-up.
void CountHit(VMain& main, Hits& hits, const BeamBody& beam);

// Scores the collisions of one moment, 1 or more: 10 points, doubled for each further one. If there are several, their
// points pop up at the average of their positions. Raises the level, and changes the music, after enough collisions.
// Only for a scored game.
void AddScore(VMain& main, const Hits& hits);

// The line beside the level's number, where the player wants one: as long as what has been done of the way to the next.
void ShowWayToLevel(VMain& main);

// One step of the pop-up: it drifts down and away from the beam, darkens, and disappears after seven steps.
void TimerMulti_Timer(VMain& main);

}  // namespace prismfall
