// Points and levels of an Arcade game, and the number that floats up beside a collision of several beams.
#pragma once

#include <cstdint>

#include "game/VMain.h"

namespace prismfall {

// The collisions of one moment: how many, and the sums of the places of their heads.
struct Hits {
    std::int16_t N = 0;
    std::int16_t MultiSumX = 0;
    std::int16_t MultiSumY = 0;
};

// Adds the collision of a growing beam, whose color and direction are from now on those of the pop-up.
void CountHit(VMain& main, Hits& hits, const BeamBody& beam);

// Scores the collisions of one moment, 1 or more: 10 points, doubled for each further one. Several bring up the pop-up
// with their points, at the middle of their places. Raises the level, with its music, when enough collisions have come
// together. Only for a scored game.
void AddScore(VMain& main, const Hits& hits);

// One step of the pop-up: it drifts down and away from the beam, darkens, and goes after seven of them.
void TimerMulti_Timer(VMain& main);

}  // namespace prismfall
