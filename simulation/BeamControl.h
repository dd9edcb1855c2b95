// What the player, the tutorial or a solution can do to a beam: find it, bend it, run it forward.
#pragma once

#include <cstdint>
#include <vector>

#include "simulation/Field.h"

namespace prismfall {

// The growing or waiting beam whose head is nearest to (X, Y), the earliest in Lines if several are equally near; null
// if it is 50 pixels away or more.
CLine* FindNearestLine(const Field& field, std::int16_t X, std::int16_t Y);

// The beams that a press can reach, by their heads: those nearest to the ground first; of those equally near, the
// earliest in Lines. A beam whose head is exactly on that of an earlier one is left out, since a press there reaches
// the other.
std::vector<const CLine*> ReachableHeads(const Field& field);

// Turns a beam in the entry zone around on the spot: erases what was drawn of it and reverses its direction.
void BendLine(Field& field, CLine& oLine);

// Runs a beam forward to its end, painting as it goes; each bounce off a wall starts a new segment of its chain. If it
// runs into a beam it is stopped, or destroyed together with it; otherwise it ends AtFloor, one step above the ground.
// Never returns Continues or Bounced.
Outcome SpeedUpLine(Field& field, CLine& oLine);

// Whether SpeedUpLine would end at a beam. No beam changes, but what is painted of `copy` above the entry limit is
// erased, as in a real run.
bool WouldEndAtBeam(const Field& field, BeamBody copy);

}  // namespace prismfall
