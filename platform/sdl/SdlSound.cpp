// Sounds by SDL_mixer, brought to the device's form anew each time: that takes less than a millisecond, and nothing
// has to be kept.
#include "platform/sdl/SdlSound.h"

#include <SDL_mixer.h>

namespace prismfall {

namespace {

constexpr int kChannel = 0;

}  // namespace

void SdlSound::Play(std::span<const std::byte> wave) {
    Release();
    if (!device.Open()) return;
    SDL_RWops* bytes = SDL_RWFromConstMem(wave.data(), static_cast<int>(wave.size()));
    chunk = bytes != nullptr ? Mix_LoadWAV_RW(bytes, 1) : nullptr;
    if (chunk != nullptr) Mix_PlayChannel(kChannel, chunk, 0);
}

bool SdlSound::IsSounding() const { return chunk != nullptr && Mix_Playing(kChannel) != 0; }

void SdlSound::Release() {
    if (chunk == nullptr) return;
    Mix_HaltChannel(kChannel);
    Mix_FreeChunk(chunk);
    chunk = nullptr;
}

}  // namespace prismfall
