// The dialog VOptions: the level at which an Arcade game begins, and the switches of music and sound effects. The
// switches act at once, the level with the OK button.
#pragma once

#include <cstdint>

#include "state/VMain.h"

namespace prismfall {

// Shows the dialog; returns when it has closed.
void ShowOptions(VMain& main);

// The level of the next Arcade game. A game in progress does not change.
void SetStartLevel(VMain& main, std::int16_t start);

}  // namespace prismfall
