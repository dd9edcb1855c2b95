// Points and levels of an Arcade game, and the number that floats up beside a collision of several beams.
#pragma once

#include <cstdint>

#include "state/VMain.h"

namespace prismfall {

// Scores N collisions (1 or more) of one moment: 10 points, doubled for each further one, which also bring up the
// pop-up where MultiSumX, MultiSumY, MultiColor and MultiDirection say. Raises the level, with its music, when enough
// collisions have come together. Only for an Arcade game.
void AddScore(VMain& main, std::int16_t N);

// One step of the pop-up: it drifts down and away from the beam, darkens, and goes after seven of them.
void TimerMulti_Timer(VMain& main);

}  // namespace prismfall
