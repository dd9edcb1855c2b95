// One step of one growing beam.
#pragma once

#include "simulation/Field.h"

namespace prismfall {

// Moves a growing beam one pixel down and one sideways, if it is its turn (every second tick in the entry zone), and
// paints that step. Continues also means that it was not its turn. A beam that bounces gets a new segment at the end of
// Lines.
Outcome GrowLine(Field& field, CLine& beam);

}  // namespace prismfall
