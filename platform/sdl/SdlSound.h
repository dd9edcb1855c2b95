// The sound effects' one voice: a new sound cuts off the old. Used on the audio thread alone.
#pragma once

#include <cstddef>
#include <span>

#include "platform/sdl/AudioDevice.h"

struct Mix_Chunk;

namespace prismfall {

class SdlSound {
  public:
    explicit SdlSound(AudioDevice& soundDevice) : device(soundDevice) {}

    // Plays a complete WAVE file, whose bytes must stay as long as it sounds.
    void Play(std::span<const std::byte> wave);
    bool IsSounding() const;
    void Release();

  private:
    AudioDevice& device;
    Mix_Chunk* chunk = nullptr;
};

}  // namespace prismfall
