// Questions about the mode of the game that many topics ask.
#pragma once

#include "state/VMain.h"

namespace prismfall {

// A puzzle that is played or being solved by the program.
bool IsPuzzle(const VMain& main);

}  // namespace prismfall
