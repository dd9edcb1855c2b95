// Music: SDL's thread asks for the next samples, which are decoded on the spot, half a second at a time.
#include "backends/sdl/sound/SdlMusic.h"

#include <algorithm>
#include <cmath>
#include <mutex>
#include <utility>

namespace prismfall {

namespace {

constexpr int kFullVolume = 1000;
constexpr int kTailsPerSecond = 10;  // one tail is enough silence for SDL's resampler to give out all it holds back
constexpr int kDecodedAhead = 12;    // times the requested amount; many frames at once take half as long as single ones

}  // namespace

std::string SdlMusic::Open(const std::string& path) {
    Close();
    return file.Open(path);
}

void SdlMusic::Close() {
    const std::lock_guard lock(device);
    file.Close();
    stream.reset();
    state = State::Stopped;
}

void SdlMusic::SetVolume(int newVolume) {
    const double share = static_cast<double>(std::clamp(newVolume, 0, kFullVolume)) / kFullVolume;
    const std::lock_guard lock(device);
    volume = static_cast<int>(std::lround(share * SDL_MIX_MAXVOLUME));
}

void SdlMusic::Play(State newState) {
    if (!file.IsOpen()) return;
    const bool hasDevice = device.Open();
    const std::lock_guard lock(device);
    state = newState;
    if (hasDevice) FitStream();
}

void SdlMusic::FitStream() {
    if (stream) return;
    const SDL_AudioSpec& form = device.Form();
    streamForm = form;
    stream.reset(SDL_NewAudioStream(AUDIO_S16SYS, static_cast<std::uint8_t>(file.Channels()), file.Rate(), form.format,
                                    form.channels, form.freq));
}

void SdlMusic::Release() {
    const std::lock_guard lock(device);
    if (!stream) return;
    const int frame = SDL_AUDIO_BITSIZE(streamForm.format) / 8 * streamForm.channels;
    const std::int64_t unheard = SDL_AudioStreamAvailable(stream.get()) / frame;
    if (file.IsOpen()) file.StepBack(static_cast<int>(unheard * file.Rate() / streamForm.freq));
    stream.reset();
}

void SdlMusic::PlayLooping() {
    Stop();
    Play(State::Looping);
}

void SdlMusic::Resume() {
    if (!PlaysOnce()) Play(State::PlayingOnce);
}

// True also when it has done so.
bool SdlMusic::PlaysOnce() {
    const std::lock_guard lock(device);
    return state == State::PlayingOnce || state == State::Over;
}

void SdlMusic::Pause() {
    const std::lock_guard lock(device);
    if (IsPlaying()) state = State::Paused;
}

void SdlMusic::Stop() {
    const std::lock_guard lock(device);
    state = State::Stopped;
    if (file.IsOpen()) file.Rewind();
    if (stream) SDL_AudioStreamClear(stream.get());
}

bool SdlMusic::IsLooping() {
    const std::lock_guard lock(device);
    return state == State::Looping;
}

bool SdlMusic::IsSounding() {
    const std::lock_guard lock(device);
    return IsPlaying() && device.IsOpen();
}

bool SdlMusic::WaitsForDevice() {
    const std::lock_guard lock(device);
    return IsPlaying() && !device.IsOpen();
}

void SdlMusic::ResumeOnDevice() {
    if (IsPlaying()) Play(state);
}

void SdlMusic::MixInto(std::span<std::uint8_t> samples) {
    if (!stream || !IsPlaying()) return;
    const int wanted = static_cast<int>(samples.size());
    if (SDL_AudioStreamAvailable(stream.get()) < wanted) DecodeAhead(wanted);
    next.resize(samples.size());
    const int got = std::max(0, SDL_AudioStreamGet(stream.get(), next.data(), wanted));
    SDL_MixAudioFormat(samples.data(), next.data(), streamForm.format, static_cast<std::uint32_t>(got),
                       volume * sharePercent / 100);
    if (got < wanted) state = State::Over;
}

// Beyond the track's end, decodes only as much as is requested: by then the track may have been told not to repeat.
void SdlMusic::DecodeAhead(int wanted) {
    bool rewound = false;
    while (SDL_AudioStreamAvailable(stream.get()) < wanted * kDecodedAhead) {
        const std::span<const std::byte> block = file.Read();
        if (!block.empty()) {
            if (SDL_AudioStreamPut(stream.get(), block.data(), static_cast<int>(block.size())) != 0) return;
            rewound = false;
            isRestFlushed = false;
            continue;
        }
        const bool isOver = state == State::PlayingOnce || rewound;
        if (isOver && !std::exchange(isRestFlushed, true)) FlushRest();
        if (isOver || SDL_AudioStreamAvailable(stream.get()) >= wanted) return;
        file.Rewind();
        rewound = true;
    }
}

// Flushing alone leaves the last 20 milliseconds in the stream if the device has another rate.
void SdlMusic::FlushRest() {
    if (file.Rate() != streamForm.freq) {
        const int samples = file.Rate() / kTailsPerSecond * file.Channels();
        const std::vector<std::int16_t> silence(static_cast<std::size_t>(samples));
        SDL_AudioStreamPut(stream.get(), silence.data(), samples * static_cast<int>(sizeof(std::int16_t)));
    }
    SDL_AudioStreamFlush(stream.get());
}

}  // namespace prismfall
