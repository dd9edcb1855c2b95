// The dialog VExtras: how the game looks, sounds and runs for players who want it otherwise, and the list of all keys.
// What is chosen acts at once; game time stands still meanwhile.
#pragma once

#include <functional>
#include <memory>

#include "screens/Dialogs.h"
#include "settings/Settings.h"

namespace prismfall {

// Shows the dialog, which is made at its first use and kept in `VExtras`; returns when it has closed. `apply` is called
// after each change of `extras`.
void ShowExtras(const DialogHost& host, std::unique_ptr<Window>& VExtras, Extras& extras, std::function<void()> apply);

}  // namespace prismfall
