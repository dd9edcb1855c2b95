// The seven short sounds of the game. They are embedded in the program (SoundResources.h).
#pragma once

#include <cstdint>

#include "audio/Audio.h"

namespace prismfall {

enum class Sound : std::int32_t {
    Stopped = 1,    // a beam stopped by one of another color
    Destroyed,      // beams of one color destroyed
    Refused,        // a right click on a beam that would run to the ground
    PuzzleCleared,  // the last beams of a puzzle destroyed
    GameOver,
    Flicker,  // the logo's last letter
    Button,
};

// Plays a sound, cutting off the one that is still playing; with `sync` it returns when the sound has ended, and no
// timer ticks until then. Does nothing while effects are off.
void PlaySound2(const Audio& audio, Sound eName, bool sync);

}  // namespace prismfall
