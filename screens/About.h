// The dialog VAbout: the game's manual and credits on one fixed page.
#pragma once

#include "state/VMain.h"

namespace prismfall {

// Shows the dialog; returns when it has closed.
void ShowAbout(VMain& main);

}  // namespace prismfall
