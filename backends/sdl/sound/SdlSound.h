// The sound effects' one voice: a new sound cuts off the old. Everything but `MixInto` is used on the audio thread
// alone.
#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "backends/sdl/sound/AudioDevice.h"

namespace prismfall {

class SdlSound {
  public:
    explicit SdlSound(AudioDevice& soundDevice) : device(soundDevice) {}

    // Plays a complete WAVE file; bytes that are none are silence.
    void Play(std::span<const std::byte> wave);
    // Of the volume, in percent. On any thread.
    void SetShare(int percent) { sharePercent = percent; }
    bool IsSounding();
    void Release();

    // Adds what is to be heard next, in the device's form. To be called with the device locked.
    void MixInto(std::span<std::uint8_t> samples);

  private:
    AudioDevice& device;
    std::atomic<int> sharePercent = 100;
    std::vector<std::uint8_t> sound;  // in the device's form; locked by the device, as `place` is
    std::size_t place = 0;
};

// How long a complete WAVE file sounds; nothing for bytes that are none.
std::chrono::nanoseconds WaveLength(std::span<const std::byte> wave);

}  // namespace prismfall
