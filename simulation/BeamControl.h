// What a hand does to a beam, whether the player's, the tutorial's or a solution's: find it, bend it, run it forward.
#pragma once

#include <cstdint>
#include <vector>

#include "simulation/Field.h"

namespace prismfall {

// The growing or waiting beam whose head is nearest to (X, Y), the earliest in Lines of those equally near; null if it
// is 50 pixels away or more.
CLine* FindNearestLine(const Field& field, std::int16_t X, std::int16_t Y);

// The beams that a press can reach, by their heads: the nearest to the ground first, of those equally near the earliest
// in Lines. One whose head lies exactly on that of an earlier beam is left out, since a press there reaches the other.
std::vector<const CLine*> ReachableHeads(const Field& field);

// Turns a beam in the entry zone round on the spot: what was drawn of it is erased, and it runs on the other way.
void BendLine(Field& field, CLine& oLine);

// Runs a beam forward to its end, painting as it goes and bouncing at walls as new segments of its chain. Where it runs
// into a beam it is stopped or destroyed with it; otherwise it ends AtFloor, one step above the ground. GoesOn and
// Bounced never come of it.
Outcome SpeedUpLine(Field& field, CLine& oLine);

// Whether SpeedUpLine would end at a beam. No beam changes; but what is painted of `copy` above the entry limit is
// erased, as the real run would.
bool WouldEndAtBeam(const Field& field, BeamBody copy);

}  // namespace prismfall
