// The dialog VPlayOn: what becomes of a recorded game that the player goes on with.
#pragma once

#include "screens/Dialogs.h"

namespace prismfall {

// Shows the dialog, while game time stands still. Returns whether the player agreed by its OK.
bool AgreeToPlayOn(const DialogHost& host);

}  // namespace prismfall
