// Plays sounds and music.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "platform/Facet.h"

namespace prismfall {

// A complete RIFF WAVE file and its id in the program.
struct Wave {
    static constexpr int kFirstId = 102;  // the id of sound 1
    int id = 0;
    std::span<const std::byte> bytes;
};

class AudioPlayer : public Facet {
  public:
    // --- Sound: one at a time, a new one cuts off the old. The bytes stay valid for the whole run.

    // Plays a sound. With `wait` the call returns when the sound's length has passed, audible or not; until then
    // nothing happens except painting.
    virtual void PlayWave(Wave wave, bool wait) = 0;

    // --- Music: one player with one file. Without an open file these calls do nothing.

    virtual void MusicClose() = 0;
    // Opens a track by the name of its MP3 file; the backend decides where tracks are stored. Returns 0, or a code that
    // MusicFailureText turns into a sentence.
    virtual int MusicOpen(std::string_view name) = 0;
    virtual void MusicSetVolume(int volume) = 0;  // 0 to 1000
    virtual void MusicPlayLooping() = 0;
    virtual void MusicResume() = 0;  // plays on to the end of the track, once
    virtual void MusicPause() = 0;
    virtual void MusicStop() = 0;
    virtual std::string MusicFailureText(int code) = 0;
};

}  // namespace prismfall
