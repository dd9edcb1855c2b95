// Sounds by SDL_mixer, brought to the device's form anew each time: that takes less than a millisecond, and nothing
// has to be kept.
#include "platform/sdl/SdlSound.h"

#include <SDL.h>

#include "platform/sdl/MixerLibrary.h"

namespace prismfall {

namespace {

constexpr int kChannel = 0;
constexpr int kToTheEnd = -1;

}  // namespace

void SdlSound::Play(std::span<const std::byte> wave) {
    Release();
    if (!device.Open()) return;
    SDL_RWops* bytes = SDL_RWFromConstMem(wave.data(), static_cast<int>(wave.size()));
    chunk = bytes != nullptr ? Mixer()->LoadWAV_RW(bytes, 1) : nullptr;
    if (chunk != nullptr) Mixer()->PlayChannelTimed(kChannel, chunk, 0, kToTheEnd);
}

bool SdlSound::IsSounding() const { return chunk != nullptr && Mixer()->Playing(kChannel) != 0; }

void SdlSound::Release() {
    if (chunk == nullptr) return;
    Mixer()->HaltChannel(kChannel);
    Mixer()->FreeChunk(chunk);
    chunk = nullptr;
}

}  // namespace prismfall
