// SDL_mixer, loaded when there is first something to play. It brings two dozen libraries with it; linked in the usual
// way they would take a good part of the time until the first picture stands, which has no sound.
#pragma once

#include <SDL_mixer.h>

namespace prismfall {

// The functions that the game calls, under their own names without the prefix.
struct MixerLibrary {
    decltype(&Mix_OpenAudioDevice) OpenAudioDevice = nullptr;
    decltype(&Mix_CloseAudio) CloseAudio = nullptr;
    decltype(&Mix_AllocateChannels) AllocateChannels = nullptr;

    decltype(&Mix_LoadMUS) LoadMUS = nullptr;
    decltype(&Mix_FreeMusic) FreeMusic = nullptr;
    decltype(&Mix_FadeInMusicPos) FadeInMusicPos = nullptr;
    decltype(&Mix_HaltMusic) HaltMusic = nullptr;
    decltype(&Mix_PauseMusic) PauseMusic = nullptr;
    decltype(&Mix_PlayingMusic) PlayingMusic = nullptr;
    decltype(&Mix_GetMusicPosition) GetMusicPosition = nullptr;
    decltype(&Mix_VolumeMusic) VolumeMusic = nullptr;

    decltype(&Mix_LoadWAV_RW) LoadWAV_RW = nullptr;
    decltype(&Mix_FreeChunk) FreeChunk = nullptr;
    decltype(&Mix_PlayChannelTimed) PlayChannelTimed = nullptr;
    decltype(&Mix_HaltChannel) HaltChannel = nullptr;
    decltype(&Mix_Playing) Playing = nullptr;
};

// The library, loaded by the first call, or nothing if it is not installed. To be called on the audio thread alone.
const MixerLibrary* Mixer();

}  // namespace prismfall
