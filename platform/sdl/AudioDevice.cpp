// Opening and closing through SDL_mixer. The audio subsystem goes with the device, so that the next opening finds the
// sound server that is there then.
#include "platform/sdl/AudioDevice.h"

#include <SDL.h>
#include <dlfcn.h>

#include "platform/sdl/MixerLibrary.h"

namespace prismfall {

namespace {

using namespace std::chrono_literals;

constexpr int kRate = 44100;
constexpr int kChannels = 2;
constexpr int kChunk = 1024;  // frames; 23 ms
constexpr auto kNextTry = 5s;

void IgnoreMessage(const char*, int, const char*, int, const char*, ...) {}

// ALSA tells a machine without a sound device about it on standard error, at length. The library is loaded with SDL;
// taking its function from there spares the game a dependency of its own.
void SilenceAlsa() {
    using Handler = void (*)(const char*, int, const char*, int, const char*, ...);
    using SetHandler = int (*)(Handler);
    void* library = dlopen("libasound.so.2", RTLD_LAZY | RTLD_NOLOAD);
    if (library == nullptr) return;
    if (const auto setHandler = reinterpret_cast<SetHandler>(dlsym(library, "snd_lib_error_set_handler")))
        setHandler(IgnoreMessage);
    dlclose(library);
}

}  // namespace

bool AudioDevice::Open() {
    if (open) return true;
    const auto now = std::chrono::steady_clock::now();
    if (failedAt && now - *failedAt < kNextTry) return false;
    SilenceAlsa();
    const MixerLibrary* mixer = Mixer();
    open = mixer != nullptr && SDL_InitSubSystem(SDL_INIT_AUDIO) == 0 &&
           mixer->OpenAudioDevice(kRate, MIX_DEFAULT_FORMAT, kChannels, kChunk, nullptr,
                                  SDL_AUDIO_ALLOW_FREQUENCY_CHANGE | SDL_AUDIO_ALLOW_CHANNELS_CHANGE) == 0;
    if (open) {
        mixer->AllocateChannels(1);
        failedAt.reset();
    } else {
        if (SDL_WasInit(SDL_INIT_AUDIO) != 0) SDL_QuitSubSystem(SDL_INIT_AUDIO);
        failedAt = now;
    }
    return open;
}

void AudioDevice::Close() {
    if (!open) return;
    open = false;
    Mixer()->CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

}  // namespace prismfall
