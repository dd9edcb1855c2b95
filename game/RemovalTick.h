// The removal tick: thins dying beams, takes those that are gone out of play, lets the beams they had stopped grow on,
// and detects that a puzzle is solved.
#pragma once

#include "game/VMain.h"

namespace prismfall {

void LineDeleter_Timer(VMain& main);

}  // namespace prismfall
