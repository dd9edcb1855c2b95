// The sound device: opened when there is something to play, closed when nothing has played for a while, so that a
// silent game is woken by nothing. Used on the audio thread alone.
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
    // Adds what is to be heard next to silence, in the form of `Form`. Called on a thread of SDL's, with the device
    // locked.
    using Fill = std::function<void(std::span<std::uint8_t> samples)>;

    explicit AudioDevice(Fill fillWith) : fill(std::move(fillWith)) {}
    AudioDevice(const AudioDevice&) = delete;
    AudioDevice& operator=(const AudioDevice&) = delete;
    ~AudioDevice() { Close(); }

    // How long it takes until a device that could not be opened is asked for again.
    static constexpr std::chrono::seconds kNextTry{2};

    // Opens the device if it is closed. Without a usable one the answer is false.
    bool Open();
    void Close();
    bool IsOpen() const { return id != 0; }
    // It was open and has gone: unplugged, or its sound server has ended. Nothing is taken from `Fill` any more.
    bool IsLost() const { return IsOpen() && SDL_GetAudioDeviceStatus(id) == SDL_AUDIO_STOPPED; }

    // How samples have to come. Opening settles it.
    const SDL_AudioSpec& Form() const { return form; }

    // Keeps `Fill` from being called; the device must be neither opened nor closed meanwhile. Named as std::lock_guard
    // wants it.
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
