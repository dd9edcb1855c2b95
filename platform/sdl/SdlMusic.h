// The music player: one file at a time, looping or to its end once. Used on the audio thread alone. It remembers what
// it is to play, so that the device may go away meanwhile and come back.
#pragma once

#include <string>

#include "platform/sdl/AudioDevice.h"

struct _Mix_Music;

namespace prismfall {

class SdlMusic {
  public:
    explicit SdlMusic(AudioDevice& soundDevice) : device(soundDevice) {}

    // Nothing if the file can be played, else the reason in the player's words. Without a device every file that can
    // be read will do.
    std::string Open(const std::string& file);
    void Close();
    void SetVolume(int newVolume);
    void PlayLooping();
    void Resume();
    void Pause();
    void Stop();

    bool IsSounding() const;
    bool IsLooping() const { return state == State::Looping; }
    // Lets the device go and take it up again; what was playing plays on at its place if there is a device then.
    void Release();
    void TakeUp();

  private:
    enum class State { Stopped, Looping, PlayingOnce, Paused, Over };  // Over: played to its end once

    bool Load();
    void Unload();
    void PlayFrom(double seconds, State newState);
    void RememberPlace();
    void NoticeEnd();

    AudioDevice& device;
    _Mix_Music* music = nullptr;
    std::string path;  // empty: no file is open
    State state = State::Stopped;
    double place = 0;  // seconds
    int volume = 1000;
};

}  // namespace prismfall
