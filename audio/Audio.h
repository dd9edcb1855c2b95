// What sounds and music are played with: a machine, and the player's two switches.
#pragma once

#include "platform/AudioPlayer.h"
#include "platform/MessageBoxes.h"
#include "settings/Settings.h"

namespace prismfall {

struct Audio {
    AudioPlayer& player;
    MessageBoxes& boxes;       // tell the player what went wrong
    const Settings& settings;  // Music and SoundEffects
};

}  // namespace prismfall
