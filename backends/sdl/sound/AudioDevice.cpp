// Opening and closing. The audio subsystem is closed with the device, so that the next opening finds the sound server
// running at that time.
#include "backends/sdl/sound/AudioDevice.h"

#include <cstdlib>
#include <cstring>

namespace prismfall {

namespace {

constexpr int kRate = 44100;
constexpr std::uint8_t kChannels = 2;
constexpr int kChunk = 2048;  // frames; 46 ms

}  // namespace

bool AudioDevice::Open() {
    if (IsOpen()) return true;
    const auto now = std::chrono::steady_clock::now();
    if (failedAt && now - *failedAt < kNextTry) return false;
    SDL_AudioSpec wanted{};
    // SDL takes what is left unset from these environment variables.
    if (std::getenv("SDL_AUDIO_FREQUENCY") == nullptr) wanted.freq = kRate;
    if (std::getenv("SDL_AUDIO_CHANNELS") == nullptr) wanted.channels = kChannels;
    wanted.format = AUDIO_S16SYS;
    wanted.samples = kChunk;
    wanted.callback = Callback;
    wanted.userdata = this;
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) == 0) {
        id = SDL_OpenAudioDevice(nullptr, 0, &wanted, &form,
                                 SDL_AUDIO_ALLOW_FREQUENCY_CHANGE | SDL_AUDIO_ALLOW_CHANNELS_CHANGE);
        if (!IsOpen()) SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }
    if (!IsOpen()) {
        failedAt = now;
        return false;
    }
    SDL_PauseAudioDevice(id, 0);
    return true;
}

void AudioDevice::Close() {
    if (!IsOpen()) return;
    SDL_CloseAudioDevice(id);
    id = 0;
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

void AudioDevice::Callback(void* self, std::uint8_t* samples, int bytes) {
    const auto& device = *static_cast<const AudioDevice*>(self);
    const std::span space(samples, static_cast<std::size_t>(bytes));
    std::memset(space.data(), device.form.silence, space.size());
    // SDL keeps requesting samples for a lost device. What nobody hears must not count as played.
    if (!device.IsLost()) device.fill(space);
}

}  // namespace prismfall
