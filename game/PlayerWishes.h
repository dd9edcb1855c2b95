// What the player has chosen among the extras, carried to the machine.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Lets the machine show and sound as the extras say. The pace is not among it: a game keeps the one it began with.
void ApplyExtras(const VMain& main);

// A game begins: at the pace of the extras. At any but the full one it enters no table.
void BeginAtPace(VMain& main);

// F1 opens the extras, M switches all sound. Other keys do nothing.
void Form_Command(VMain& main, Key key);

}  // namespace prismfall
