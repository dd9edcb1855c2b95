// How beams come into play: at random columns of the spawn grid, and as the next segment of a chain at every bend and
// wall. Paints nothing: a new beam becomes visible with its first step.
#pragma once

#include <cstdint>

#include "simulation/Field.h"

namespace prismfall {

// Appends a growing beam to Lines, in a random free column at the height `StartY`, in a random direction and color.
// Returns null if no column is free.
CLine* CreateLine(Field& field, std::int16_t StartY);

// The next segment of a beam's chain: it starts at the head and runs in the other direction.
BeamBody NextSegment(const BeamBody& beam);

// Bends a beam: stops it where it is and appends the next segment of its chain to Lines, the two linked in both
// directions.
CLine& SplitLine(Field& field, CLine& oLine);

}  // namespace prismfall
