// The sound device: opened when there is something to play, closed when nothing has played for a while, so that nothing
// wakes a silent game. Used only on the audio thread.
#pragma once

#include <SDL.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>

namespace prismfall {

class AudioDevice {
  public:
    // Mixes the next samples into silence, in the format `Form`. Called on SDL's thread, with the device locked.
    using Fill = std::function<void(std::span<std::uint8_t> samples)>;

    explicit AudioDevice(Fill fillWith) : fill(std::move(fillWith)) {}
    AudioDevice(const AudioDevice&) = delete;
    AudioDevice& operator=(const AudioDevice&) = delete;
    ~AudioDevice() { Close(); }

    // How long to wait before trying again to open a device that could not be opened.
    static constexpr std::chrono::seconds kNextTry{2};

    // Opens the device if it is closed. Returns false if there is no usable one.
    bool Open();
    void Close();
    bool IsOpen() const { return id != 0; }
    // The device was open and has disappeared: it was unplugged, or its sound server has ended. `Fill` is no longer
    // called.
    bool IsLost() const { return IsOpen() && SDL_GetAudioDeviceStatus(id) == SDL_AUDIO_STOPPED; }

    // The sample format. Opening determines it.
    const SDL_AudioSpec& Form() const { return form; }

    // Keeps `Fill` from being called; the device must not be opened or closed meanwhile. Named as std::lock_guard
    // requires.
    void lock() const {
        if (IsOpen()) SDL_LockAudioDevice(id);
    }
    void unlock() const {
        if (IsOpen()) SDL_UnlockAudioDevice(id);
    }

  private:
    static void Callback(void* self, std::uint8_t* samples, int bytes);

    Fill fill;
    SDL_AudioDeviceID id = 0;
    SDL_AudioSpec form{};
    std::optional<std::chrono::steady_clock::time_point> failedAt;
};

}  // namespace prismfall
