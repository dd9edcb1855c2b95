// The music player: one file at a time, looping or to its end once. Everything but `MixInto` is used on the audio
// thread alone. It goes on from its place whatever becomes of the device meanwhile.
#pragma once

#include <SDL.h>

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

    // Nothing if the file can be played, else its path and the decoder's reason.
    std::string Open(const std::string& path);
    void Close();
    void SetVolume(int newVolume);
    void PlayLooping();
    void Resume();
    void Pause();
    void Stop();

    bool IsSounding();
    bool IsLooping();
    // Is to be heard, and has no device.
    bool AwaitsDevice();
    // Plays on where it fell silent, if there is a device now.
    void TakeUp();
    // To be called before the device is closed, with which SDL's streams may go. Samples that have not been heard yet
    // are decoded again.
    void Release();

    // Adds what is to be heard next, in the device's form. To be called with the device locked.
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
    void GiveOutRest();

    AudioDevice& device;
    // Locked by the device, as SDL's thread uses them too:
    MusicFile file;
    std::unique_ptr<SDL_AudioStream, FreeStream> stream;  // from the file's form to the device's; none before its first
    SDL_AudioSpec streamForm{};                           // the device's, as the stream knows it
    std::vector<std::uint8_t> next;
    bool isRestGivenOut = false;  // what the stream held back at the track's end
    State state = State::Stopped;
    int volume = SDL_MIX_MAXVOLUME;
};

}  // namespace prismfall
