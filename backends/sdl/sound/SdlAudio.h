// Sound and music as the platform offers them: every call becomes a task of the audio thread, and the device is closed
// when nothing plays.
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
    // Returns 0, or a code for MusicFailureText.
    int MusicOpen(const std::string& path);
    std::string MusicFailureText(int code) const;
    void DoWithMusic(std::function<void(SdlMusic&)> action);
    // Percentages applied to the volumes that the game sets.
    void SetShares(int musicPercent, int effectsPercent);
    // A device has disappeared. If it was the one in use, music resumes as soon as another one is available.
    void DeviceLost();
    // Stops all sound and ends the audio thread. Returns false if the sound server hangs; then the only way out is to
    // end the process.
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
