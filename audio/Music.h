// Background music: which file belongs to which level, and the one track that plays. Tracks loop. While the player's
// Music switch is off, nothing is passed to the platform.
#pragma once

#include <cstdint>
#include <string_view>

#include "audio/Audio.h"

namespace prismfall {

constexpr std::int16_t kMusicVolume = 900;  // of 1000
constexpr std::string_view kIntroTrack = "Orvane-Aurora_Borealis.mp3";

// Plays the file in a loop, replacing the previous track. If it cannot be opened, a message box tells the player, and
// there is no music until the next track.
void PlayMusicFile(const Audio& audio, std::string_view file, std::int16_t volume);
inline void PlayIntroMusic(const Audio& audio) { PlayMusicFile(audio, kIntroTrack, kMusicVolume); }
// The track of an Arcade level or of a puzzle. A number outside 1 to 45 keeps the current track playing.
void PlayLevelMusic(const Audio& audio, std::int16_t number);

void SetMusicVolume(const Audio& audio, std::int16_t volume);
void StopMusic(const Audio& audio);
void PauseMusic(const Audio& audio);
// Plays the track on to its end, once; then there is silence until another track starts.
void ResumeMusic(const Audio& audio);

}  // namespace prismfall
