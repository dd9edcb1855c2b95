// The seven short sounds of the game, by number. They are part of the program (SoundResources.h).
#pragma once

#include <cstdint>

#include "state/VMain.h"

namespace prismfall {

constexpr std::int32_t kSoundStopped = 1;        // a beam stopped by one of another colour
constexpr std::int32_t kSoundDestroyed = 2;      // beams of one colour destroyed
constexpr std::int32_t kSoundRefused = 3;        // a right click that would end on the ground
constexpr std::int32_t kSoundPuzzleCleared = 4;  // the last beams of a puzzle destroyed
constexpr std::int32_t kSoundGameOver = 5;
constexpr std::int32_t kSoundFlicker = 6;  // the logo's letter
constexpr std::int32_t kSoundButton = 7;

// Plays a sound, cutting off the one that still plays; with `sync` it returns when the sound has ended, and no timer
// ticks meanwhile. Nothing, not even reading the sound, while effects are off.
void PlaySound2(const VMain& main, std::int32_t eName, Boolean sync);

// Switches the effects on or off. A sound that is playing plays on.
void SetSoundEffects(VMain& main, Boolean value);

}  // namespace prismfall
