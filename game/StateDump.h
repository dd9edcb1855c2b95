// The state of a game as text: two games that print the same here will continue in the same way.
#pragma once

#include "game/VMain.h"
#include "platform/Printer.h"

namespace prismfall {

// A line of state, one of timers, one for each beam, and one of the beams that are dying.
void PrintDump(Printer& out, const VMain& main);

}  // namespace prismfall
