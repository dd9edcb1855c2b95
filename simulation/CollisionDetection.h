// The one geometric question of the game: which beam is just ahead of a head?
#pragma once

#include <cstdint>

#include "simulation/Field.h"

namespace prismfall {

// The first beam in Lines that is close enough to the test point (X, Y), or null. A beam is hit at a distance of 1 or
// less, or at its head, if that moves in the other direction at about the height `PrevY`, where the moving head was
// before its step. Nothing is hit at or above the blue line. `FastLine` is for a beam that runs forward: it passes
// through all dying beams; a growing one still strikes those in the first step of their removal.
CLine* FindCollision(const Field& field, std::int16_t X, std::int16_t Y, std::int16_t PrevY, Heading Direction,
                     bool FastLine);

// The point on the segment from (X1, Y1) to (X2, Y2) that is nearest to (X, Y), and its distance.
void PointToSegmentDistance(float X, float Y, float X1, float Y1, float X2, float Y2, float& NearestX, float& NearestY,
                            float& Distance);

}  // namespace prismfall
