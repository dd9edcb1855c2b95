// The dialog VAbout: the game's manual and credits on one fixed page.
#pragma once

#include <memory>

#include "screens/Dialogs.h"

namespace prismfall {

// Shows the dialog, which is built on first use and kept in `VAbout`; returns when it has been closed.
void ShowAbout(const DialogHost& host, std::unique_ptr<Window>& VAbout);

}  // namespace prismfall
