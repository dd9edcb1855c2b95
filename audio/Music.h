// Background music: which track plays when. One track at a time, looping. With Music off nothing reaches the machine.
#pragma once

#include <cstdint>
#include <string_view>

#include "state/VMain.h"

namespace prismfall {

constexpr std::int16_t kMusicVolume = 900;  // of 1000
constexpr std::string_view kIntroTrack = "Orvane-Aurora_Borealis.mp3";

// Plays the file, looping, in place of what played before. One that cannot be opened is told to the player in a message
// box, and there is no music until the next track.
void PlayMusicFile(const VMain& main, std::string_view file, std::int16_t volume);

void SetMusicVolume(const VMain& main, std::int16_t volume);

// The track of an Arcade level or of a puzzle. A number outside 1 to 45 leaves the present track on.
void PlayLevelMusic(const VMain& main, std::int16_t number);

void StopMusic(const VMain& main);
void PauseMusic(const VMain& main);
// The track plays on to its end, once; then there is silence until another one starts.
void ResumeMusic(const VMain& main);

// Switches the music as a whole. Switched on, it starts the track that fits GameMode, in a solution replay none.
void SetMusic(VMain& main, Boolean value);

// One second after start-up: the intro track, once.
void TimerPlayIntro_Timer(VMain& main);

}  // namespace prismfall
