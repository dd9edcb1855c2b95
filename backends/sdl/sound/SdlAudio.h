// Sound and music as the platform offers them: every call becomes a task of the audio thread, and the device is let go
// when nothing sounds.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>

#include "backends/sdl/sound/AudioDevice.h"
#include "backends/sdl/sound/AudioThread.h"
#include "backends/sdl/sound/SdlMusic.h"
#include "backends/sdl/sound/SdlSound.h"

namespace prismfall {

class SdlAudio {
  public:
    SdlAudio();
    SdlAudio(const SdlAudio&) = delete;
    SdlAudio& operator=(const SdlAudio&) = delete;
    ~SdlAudio() { Finish(); }

    void PlayWave(std::span<const std::byte> wave);
    // 0, or a code for MusicFailureText.
    int MusicOpen(const std::string& path);
    std::string MusicFailureText(int code) const;
    void DoWithMusic(std::function<void(SdlMusic&)> action);
    // Some device has gone. If it was the one in use, music plays on as soon as there is another one.
    void DeviceLost();
    // Silence, and the end of the audio thread. False if the sound server hangs; only the process's end helps then.
    bool Finish();

  private:
    void PlanAhead();
    void Silence();

    AudioDevice device;
    SdlMusic music;
    SdlSound sound;
    std::string failure;
    bool used = false;
    AudioThread thread;
};

}  // namespace prismfall
