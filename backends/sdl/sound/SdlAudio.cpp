#include "backends/sdl/sound/SdlAudio.h"

#include <memory>

namespace prismfall {

namespace {

using namespace std::chrono_literals;

constexpr auto kSilenceBeforeClosing = 3s;
constexpr auto kLongestWait = 700ms;  // for the audio thread; a device takes at most a tenth of it to open or close
constexpr int kFailureCode = 1;

}  // namespace

SdlAudio::SdlAudio()
    : device([this](std::span<std::uint8_t> samples) {
          music.MixInto(samples);
          sound.MixInto(samples);
      }),
      music(device),
      sound(device) {}

void SdlAudio::PlayWave(std::span<const std::byte> wave) {
    used = true;
    thread.Post([this, wave] {
        sound.Play(wave);
        PlanAhead();
    });
}

int SdlAudio::MusicOpen(const std::string& path) {
    used = true;
    const auto answer = std::make_shared<std::string>();
    const auto open = [this, path, answer] {
        *answer = music.Open(path);
        PlanAhead();
    };
    // If the sound server hangs, nothing will be heard, which is not the file's fault.
    failure = thread.Call(open, kLongestWait) ? *answer : std::string();
    return failure.empty() ? 0 : kFailureCode;
}

std::string SdlAudio::MusicFailureText(int code) const { return code == kFailureCode ? failure : std::string(); }

void SdlAudio::DoWithMusic(std::function<void(SdlMusic&)> action) {
    if (!used) return;
    thread.Post([this, action = std::move(action)] {
        action(music);
        PlanAhead();
    });
}

void SdlAudio::SetShares(int musicPercent, int effectsPercent) {
    music.SetShare(musicPercent);
    sound.SetShare(effectsPercent);
}

void SdlAudio::DeviceLost() {
    if (!used) return;
    thread.Post([this] {
        if (!device.IsLost()) return;
        Silence();
        music.ResumeOnDevice();
        PlanAhead();
    });
}

// Decides when the audio thread wakes up by itself: to look for a device while music waits for one, or to close a
// device that has not been used for a while.
void SdlAudio::PlanAhead() {
    if (music.WaitsForDevice()) {
        return thread.RunLater(AudioDevice::kNextTry, [this] {
            music.ResumeOnDevice();
            PlanAhead();
        });
    }
    // Only a call ends a looping track, and that call ends up here again.
    if (!device.IsOpen() || (music.IsSounding() && music.IsLooping())) return thread.RunLater(std::nullopt, {});
    thread.RunLater(kSilenceBeforeClosing, [this] {
        if (music.IsSounding() || sound.IsSounding()) return PlanAhead();
        Silence();
    });
}

void SdlAudio::Silence() {
    sound.Release();
    music.Release();
    device.Close();
}

bool SdlAudio::Finish() {
    if (!used) return true;
    thread.Post([this] {
        music.Close();
        Silence();
    });
    return thread.Finish(kLongestWait);
}

}  // namespace prismfall
