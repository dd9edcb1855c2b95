// The dialog VPlayOn: what taking over a recorded game means.
#pragma once

#include "screens/Dialogs.h"

namespace prismfall {

// Shows the dialog; game time is frozen while it is open. Returns whether the player clicked OK.
bool AgreeToPlayOn(const DialogHost& host);

}  // namespace prismfall
