// The dialog VOptions: the level at which an Arcade game begins, and the switches for music and sound effects. The
// switches take effect at once, the level with the OK button.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "screens/Dialogs.h"
#include "settings/Settings.h"

namespace prismfall {

// Shows the dialog, which is built on first use and kept in `VOptions`; returns when it has been closed. `setMusic`
// switches the music: only the caller knows which track belongs to the current screen.
void ShowOptions(const DialogHost& host, std::unique_ptr<Window>& VOptions, Settings& settings,
                 std::function<void(bool isOn)> setMusic);

// The level of the next Arcade game. A game in progress does not change.
void SetStartLevel(Settings& settings, std::int16_t start);

// Switches the effects on or off. A sound that is already playing continues.
void SetSoundEffects(Settings& settings, bool value);

}  // namespace prismfall
