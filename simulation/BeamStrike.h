// What happens where a beam runs into another one.
#pragma once

#include "simulation/Field.h"

namespace prismfall {

// `oLine` has run into `hit`: it stops there, and from now on waits in its StoppingLines. A live beam
// that meets its own colour takes the first step of its removal, and `hit` as well; painted as DeleteLine says.
// `ByFastLine` for a beam that ran forward: what it hits is out of play at once. Stopped or Destroyed.
Outcome StrikeLine(Field& field, CLine& oLine, CLine& hit, bool ByFastLine);

}  // namespace prismfall
