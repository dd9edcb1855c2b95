// The music player: one file at a time, looping or once to its end. Everything except `MixInto` is used only on the
// audio thread. It keeps its place in the track whatever happens to the device.
#pragma once

#include <SDL.h>

#include <atomic>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "backends/sdl/sound/AudioDevice.h"
#include "backends/sdl/sound/MusicFile.h"

namespace prismfall {

class SdlMusic {
  public:
    explicit SdlMusic(AudioDevice& soundDevice) : device(soundDevice) {}

    // Returns nothing if the file can be played, otherwise its path and the decoder's reason.
    std::string Open(const std::string& path);
    void Close();
    void SetVolume(int newVolume);
    void PlayLooping();
    void Resume();
    void Pause();
    void Stop();

    // A percentage applied to the volume. May be called on any thread.
    void SetShare(int percent) { sharePercent = percent; }
    bool IsSounding();
    bool IsLooping();
    // Whether it should be playing but has no device.
    bool WaitsForDevice();
    // Resumes where it fell silent, if there is a device now.
    void ResumeOnDevice();
    // Call it before the device is closed, which may free SDL's streams. Samples that have not been heard yet are
    // decoded again.
    void Release();

    // Mixes in the next samples, in the device's format. Call it with the device locked.
    void MixInto(std::span<std::uint8_t> samples);

  private:
    enum class State { Stopped, Looping, PlayingOnce, Paused, Over };  // Over: played to its end once
    struct FreeStream {
        void operator()(SDL_AudioStream* done) const { SDL_FreeAudioStream(done); }
    };

    bool IsPlaying() const { return state == State::Looping || state == State::PlayingOnce; }
    bool PlaysOnce();
    void Play(State newState);
    void FitStream();
    void DecodeAhead(int wanted);
    void FlushRest();

    AudioDevice& device;
    std::atomic<int> sharePercent = 100;
    // Protected by the device's lock, since SDL's thread uses them too:
    MusicFile file;
    std::unique_ptr<SDL_AudioStream, FreeStream> stream;  // from the file's format to the device's; null at first
    SDL_AudioSpec streamForm{};                           // the device's format, as the stream knows it
    std::vector<std::uint8_t> next;
    bool isRestFlushed = false;  // what the stream held back at the track's end
    State state = State::Stopped;
    int volume = SDL_MIX_MAXVOLUME;
};

}  // namespace prismfall
