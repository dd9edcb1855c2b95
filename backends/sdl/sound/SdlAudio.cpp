// The way from the game's thread to the audio thread, and the rule by which the device is let go.
#include "backends/sdl/sound/SdlAudio.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

namespace prismfall {

namespace {

using namespace std::chrono_literals;

constexpr auto kSilenceBeforeClosing = 3s;
constexpr auto kLongestWait = 700ms;  // for the audio thread; a device opens and closes within a tenth of it
constexpr int kFailureCode = 1;

std::uint32_t Number(std::span<const std::byte> bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i-- > 0;)
        value = value << 8 | (at + i < bytes.size() ? std::to_integer<std::uint32_t>(bytes[at + i]) : 0U);
    return value;
}

bool HasTag(std::span<const std::byte> bytes, std::size_t at, std::string_view tag) {
    return at + tag.size() <= bytes.size() && std::memcmp(bytes.data() + at, tag.data(), tag.size()) == 0;
}

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
        CloseWhenSilent();
    });
}

int SdlAudio::MusicOpen(const std::string& path) {
    used = true;
    const auto answer = std::make_shared<std::string>();
    const auto open = [this, path, answer] {
        *answer = music.Open(path);
        CloseWhenSilent();
    };
    // With a sound server that hangs nothing will be heard, which is no failure of the file.
    failure = thread.Call(open, kLongestWait) ? *answer : std::string();
    return failure.empty() ? 0 : kFailureCode;
}

std::string SdlAudio::MusicFailureText(int code) const { return code == kFailureCode ? failure : std::string(); }

void SdlAudio::DoWithMusic(std::function<void(SdlMusic&)> action) {
    if (!used) return;
    thread.Post([this, action = std::move(action)] {
        action(music);
        CloseWhenSilent();
    });
}

void SdlAudio::DeviceLost() {
    if (!used) return;
    thread.Post([this] {
        if (!device.IsOpen()) return;
        sound.Release();
        device.Close();
        music.TakeUp();
        CloseWhenSilent();
    });
}

void SdlAudio::CloseWhenSilent() {
    // A looping track ends by a call alone, and that call comes by here.
    if (!device.IsOpen() || (music.IsSounding() && music.IsLooping())) return thread.RunLater(std::nullopt, {});
    thread.RunLater(kSilenceBeforeClosing, [this] {
        if (music.IsSounding() || sound.IsSounding()) return CloseWhenSilent();
        sound.Release();
        device.Close();
    });
}

bool SdlAudio::Finish() {
    if (!used) return true;
    thread.Post([this] {
        sound.Release();
        music.Close();
        device.Close();
    });
    return thread.Finish(kLongestWait);
}

std::chrono::nanoseconds WaveLength(std::span<const std::byte> wave) {
    if (!HasTag(wave, 0, "RIFF") || !HasTag(wave, 8, "WAVE")) return 0ns;
    std::uint64_t bytesPerSecond = 0;
    for (std::size_t at = 12; at + 8 <= wave.size();) {
        const std::size_t content = at + 8;
        const std::uint64_t size = std::min<std::uint64_t>(Number(wave, at + 4), wave.size() - content);
        if (HasTag(wave, at, "fmt ")) bytesPerSecond = Number(wave, content + 8);
        if (HasTag(wave, at, "data"))
            return std::chrono::nanoseconds(bytesPerSecond > 0 ? size * 1'000'000'000 / bytesPerSecond : 0);
        at = content + size + size % 2;
    }
    return 0ns;
}

}  // namespace prismfall
