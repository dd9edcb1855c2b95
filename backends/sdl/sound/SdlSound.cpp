// Sounds, brought to the device's form anew each time: that takes less than a millisecond, and nothing has to be kept.
#include "backends/sdl/sound/SdlSound.h"

#include <SDL.h>

#include <algorithm>
#include <memory>
#include <mutex>

namespace prismfall {

namespace {

struct FreeWave {
    void operator()(std::uint8_t* samples) const { SDL_FreeWAV(samples); }
};

// The samples of a WAVE file in another form; none if it cannot be read.
std::vector<std::uint8_t> Converted(std::span<const std::byte> wave, const SDL_AudioSpec& form) {
    SDL_AudioSpec found{};
    std::uint8_t* samples = nullptr;
    std::uint32_t bytes = 0;
    SDL_RWops* file = SDL_RWFromConstMem(wave.data(), static_cast<int>(wave.size()));
    if (file == nullptr || SDL_LoadWAV_RW(file, 1, &found, &samples, &bytes) == nullptr) return {};
    const std::unique_ptr<std::uint8_t, FreeWave> owner(samples);
    SDL_AudioCVT conversion{};
    if (SDL_BuildAudioCVT(&conversion, found.format, found.channels, found.freq, form.format, form.channels,
                          form.freq) < 0)
        return {};
    std::vector<std::uint8_t> sound(static_cast<std::size_t>(bytes) * static_cast<std::size_t>(conversion.len_mult));
    std::copy_n(samples, bytes, sound.begin());
    conversion.buf = sound.data();
    conversion.len = static_cast<int>(bytes);
    if (SDL_ConvertAudio(&conversion) != 0) return {};
    sound.resize(static_cast<std::size_t>(conversion.len_cvt));
    return sound;
}

}  // namespace

void SdlSound::Play(std::span<const std::byte> wave) {
    Release();
    if (!device.Open()) return;
    std::vector<std::uint8_t> next = Converted(wave, device.Form());
    const std::lock_guard lock(device);
    sound = std::move(next);
}

bool SdlSound::IsSounding() {
    const std::lock_guard lock(device);
    return place < sound.size();
}

void SdlSound::Release() {
    const std::lock_guard lock(device);
    sound.clear();
    place = 0;
}

void SdlSound::MixInto(std::span<std::uint8_t> samples) {
    const std::size_t bytes = std::min(samples.size(), sound.size() - place);
    SDL_MixAudioFormat(samples.data(), sound.data() + place, device.Form().format, static_cast<std::uint32_t>(bytes),
                       SDL_MIX_MAXVOLUME);
    place += bytes;
}

}  // namespace prismfall
