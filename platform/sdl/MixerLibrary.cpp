// Finding the functions of SDL_mixer by their names. A library that lacks one of them is as good as none.
#include "platform/sdl/MixerLibrary.h"

#include <dlfcn.h>

#include <optional>

namespace prismfall {

namespace {

constexpr const char* kFile = "libSDL2_mixer-2.0.so.0";

template <typename Function>
bool Find(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

std::optional<MixerLibrary> Load() {
    void* library = dlopen(kFile, RTLD_LAZY | RTLD_LOCAL);
    if (library == nullptr) return std::nullopt;
    MixerLibrary mixer;
    const auto find = [library](const char* name, auto& function) { return Find(library, name, function); };
    const bool complete =
        find("Mix_OpenAudioDevice", mixer.OpenAudioDevice) && find("Mix_CloseAudio", mixer.CloseAudio) &&
        find("Mix_AllocateChannels", mixer.AllocateChannels) && find("Mix_LoadMUS", mixer.LoadMUS) &&
        find("Mix_FreeMusic", mixer.FreeMusic) && find("Mix_FadeInMusicPos", mixer.FadeInMusicPos) &&
        find("Mix_HaltMusic", mixer.HaltMusic) && find("Mix_PauseMusic", mixer.PauseMusic) &&
        find("Mix_PlayingMusic", mixer.PlayingMusic) && find("Mix_GetMusicPosition", mixer.GetMusicPosition) &&
        find("Mix_VolumeMusic", mixer.VolumeMusic) && find("Mix_LoadWAV_RW", mixer.LoadWAV_RW) &&
        find("Mix_FreeChunk", mixer.FreeChunk) && find("Mix_PlayChannelTimed", mixer.PlayChannelTimed) &&
        find("Mix_HaltChannel", mixer.HaltChannel) && find("Mix_Playing", mixer.Playing);
    if (!complete) return std::nullopt;
    return mixer;
}

}  // namespace

const MixerLibrary* Mixer() {
    static const std::optional<MixerLibrary> mixer = Load();
    return mixer ? &*mixer : nullptr;
}

}  // namespace prismfall
