// What sounds and music are played with: a machine, and the player's two switches.
#pragma once

#include "platform/Platform.h"
#include "settings/Settings.h"

namespace prismfall {

struct Audio {
    Platform& player;
    const Settings& settings;  // Music and SoundEffects
};

}  // namespace prismfall
