// Applies the player's choices among the extras.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Makes the machine look and sound as the extras say. The pace is left out: a game keeps the one it began with.
void ApplyExtras(VMain& main);

// A game begins at the pace set in the extras. At any pace but the full one, it does not enter the score table.
void BeginAtPace(VMain& main);

// F1 opens the extras, M switches all sound. Other keys do nothing.
void Form_Command(VMain& main, Key key);

}  // namespace prismfall
