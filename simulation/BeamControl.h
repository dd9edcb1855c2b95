// What a player's hand does to a beam, whoever plays: the player, the tutorial or a solution.
#pragma once

#include <cstdint>

#include "state/VMain.h"

namespace prismfall {

// The growing or waiting beam whose head is nearest to (X, Y), the earliest in Lines of those equally near; nothing if
// it is 50 pixels away or more.
CLine* FindNearestLine(const VMain& main, std::int16_t X, std::int16_t Y);

// Turns a beam in the entry zone round on the spot: what was drawn of it goes, and it runs on the other way.
void BendLine(VMain& main, CLine& oLine);

// Runs a beam forward to its end, painting as it goes, bouncing at walls as new segments; true if the run ends at a
// beam, which then stops it or is destroyed with it, with sound and points. It stops one step above the ground
// otherwise. With `Simulate` it only tells the result: no beam of Lines changes and nothing sounds, but what is above
// the entry limit is painted out all the same.
bool SpeedUpLine(VMain& main, CLine& oLine, Boolean Simulate);

}  // namespace prismfall
