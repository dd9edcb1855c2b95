// What it takes to play sounds and music: an audio player, and the player's two switches.
#pragma once

#include "platform/AudioPlayer.h"
#include "platform/MessageBoxes.h"
#include "settings/Settings.h"

namespace prismfall {

struct Audio {
    AudioPlayer& player;
    MessageBoxes& boxes;       // for telling the player what went wrong
    const Settings& settings;  // Music and SoundEffects
};

}  // namespace prismfall
