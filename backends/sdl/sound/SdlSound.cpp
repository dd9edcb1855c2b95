// Sounds, read and converted to the device's format every time: that takes less than a millisecond, and nothing has to
// be kept.
#include "backends/sdl/sound/SdlSound.h"

#include <SDL.h>

#include <algorithm>
#include <memory>
#include <mutex>
#include <utility>

namespace prismfall {

namespace {

struct Free {
    void operator()(std::uint8_t* samples) const { SDL_FreeWAV(samples); }
};

struct WaveSamples {
    SDL_AudioSpec form{};
    std::unique_ptr<std::uint8_t, Free> samples;  // null if the file cannot be read
    std::uint32_t bytes = 0;
};

WaveSamples ReadWave(std::span<const std::byte> wave) {
    WaveSamples found;
    std::uint8_t* samples = nullptr;
    SDL_RWops* file = SDL_RWFromConstMem(wave.data(), static_cast<int>(wave.size()));
    if (file != nullptr && SDL_LoadWAV_RW(file, 1, &found.form, &samples, &found.bytes) != nullptr)
        found.samples.reset(samples);
    return found;
}

// In one piece: SDL's stream would hold back the last 20 to 50 milliseconds of a sound.
std::vector<std::uint8_t> Converted(const WaveSamples& wave, const SDL_AudioSpec& form) {
    SDL_AudioCVT conversion;
    if (!wave.samples || SDL_BuildAudioCVT(&conversion, wave.form.format, wave.form.channels, wave.form.freq,
                                           form.format, form.channels, form.freq) < 0)
        return {};
    std::vector<std::uint8_t> sound(std::size_t{wave.bytes} * static_cast<std::size_t>(conversion.len_mult));
    std::copy_n(wave.samples.get(), wave.bytes, sound.begin());
    conversion.buf = sound.data();
    conversion.len = static_cast<int>(wave.bytes);
    if (SDL_ConvertAudio(&conversion) != 0) return {};
    sound.resize(static_cast<std::size_t>(conversion.len_cvt));
    return sound;
}

}  // namespace

void SdlSound::Play(std::span<const std::byte> wave) {
    Release();
    if (!device.Open()) return;
    std::vector<std::uint8_t> next = Converted(ReadWave(wave), device.Form());
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
                       SDL_MIX_MAXVOLUME * sharePercent / 100);
    place += bytes;
}

std::chrono::nanoseconds WaveLength(std::span<const std::byte> wave) {
    const WaveSamples found = ReadWave(wave);
    if (!found.samples || found.form.freq <= 0) return {};
    const std::int64_t frames = found.bytes / (SDL_AUDIO_BITSIZE(found.form.format) / 8U * found.form.channels);
    return std::chrono::nanoseconds(frames * 1'000'000'000 / found.form.freq);
}

}  // namespace prismfall
