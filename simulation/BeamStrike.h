// What happens where a beam runs into another one.
#pragma once

#include "simulation/Field.h"

namespace prismfall {

// `oLine` has run into `hit`: it stops there and waits in the StoppingLines of `hit`. If a live beam hits its own
// colour, both take the first step of their removal, painted as DeleteLine says. `ByFastLine` means that the beam ran
// forward: what it hits is out of play at once. Returns Stopped or Destroyed.
Outcome StrikeLine(Field& field, CLine& oLine, CLine& hit, bool ByFastLine);

}  // namespace prismfall
