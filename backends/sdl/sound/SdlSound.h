// The single voice for sound effects: a new sound cuts off the old. Everything except `MixInto` is used only on the
// audio thread.
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

    // Plays a complete WAVE file; invalid data is silent.
    void Play(std::span<const std::byte> wave);
    // A percentage applied to the volume. May be called on any thread.
    void SetShare(int percent) { sharePercent = percent; }
    bool IsSounding();
    void Release();

    // Mixes in the next samples, in the device's format. Call it with the device locked.
    void MixInto(std::span<std::uint8_t> samples);

  private:
    AudioDevice& device;
    std::atomic<int> sharePercent = 100;
    std::vector<std::uint8_t> sound;  // in the device's format; protected by the device's lock, like `place`
    std::size_t place = 0;
};

// The length of a complete WAVE file; nothing for invalid data.
std::chrono::nanoseconds WaveLength(std::span<const std::byte> wave);

}  // namespace prismfall
