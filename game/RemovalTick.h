// The timer that carries the removal of beams on: it thins the dying ones, takes those that are gone out of play, lets
// the beams that they had stopped grow on, and finds out that a puzzle is solved.
#pragma once

#include "game/VMain.h"

namespace prismfall {

void LineDeleter_Timer(VMain& main);

}  // namespace prismfall
