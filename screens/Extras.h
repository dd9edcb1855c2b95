// The dialog VExtras: options for how the game looks, sounds and runs, and the list of all keys. Changes take effect at
// once; game time is stopped while it is open.
#pragma once

#include <functional>
#include <memory>

#include "screens/Dialogs.h"
#include "settings/Settings.h"

namespace prismfall {

// Shows the dialog, which is built on first use and kept in `VExtras`; returns when it has closed. `apply` is called
// after each change of `extras`.
void ShowExtras(const DialogHost& host, std::unique_ptr<Window>& VExtras, Extras& extras, std::function<void()> apply);

}  // namespace prismfall
