// Music by SDL_mixer, which cannot change a playing track from looping to playing once: that takes a new start at the
// same place.
#include "platform/sdl/SdlMusic.h"

#include <SDL.h>

#include <algorithm>
#include <cmath>

#include "platform/sdl/MixerLibrary.h"

namespace prismfall {

namespace {

constexpr int kFullVolume = 1000;
constexpr int kEndless = -1;
constexpr int kOnce = 1;

// The reason why a file cannot be read, or nothing.
std::string ReadingFailure(const std::string& path) {
    SDL_RWops* file = SDL_RWFromFile(path.c_str(), "rb");
    if (file == nullptr) return SDL_GetError();
    char byte = 0;
    const bool readable = SDL_RWread(file, &byte, 1, 1) == 1;
    SDL_RWclose(file);
    return readable ? std::string() : "Couldn't read " + path;
}

}  // namespace

std::string SdlMusic::Open(const std::string& file) {
    Close();
    if (std::string failure = ReadingFailure(file); !failure.empty()) return failure;
    path = file;
    if (!device.Open() || Load()) return {};
    const std::string failure = SDL_GetError();
    path.clear();
    return failure.empty() ? "Couldn't play " + file : failure;
}

bool SdlMusic::Load() {
    if (music == nullptr) music = Mixer()->LoadMUS(path.c_str());
    if (music != nullptr) SetVolume(volume);
    return music != nullptr;
}

void SdlMusic::Unload() {
    if (music == nullptr) return;
    Mixer()->HaltMusic();
    Mixer()->FreeMusic(music);
    music = nullptr;
}

void SdlMusic::Close() {
    Unload();
    path.clear();
    state = State::Stopped;
    place = 0;
}

void SdlMusic::SetVolume(int newVolume) {
    volume = std::clamp(newVolume, 0, kFullVolume);
    if (music == nullptr) return;
    Mixer()->VolumeMusic(static_cast<int>(std::lround(static_cast<double>(volume) * MIX_MAX_VOLUME / kFullVolume)));
}

void SdlMusic::PlayFrom(double seconds, State newState) {
    if (path.empty()) return;
    state = newState;
    place = seconds;
    if (!device.Open() || !Load()) return;
    // A fade of no length is the one call that starts at a place without letting the track's beginning be heard.
    Mixer()->FadeInMusicPos(music, newState == State::Looping ? kEndless : kOnce, 0, seconds);
}

void SdlMusic::RememberPlace() {
    if (music != nullptr) place = std::max(0.0, Mixer()->GetMusicPosition(music));
}

void SdlMusic::PlayLooping() { PlayFrom(0, State::Looping); }

void SdlMusic::NoticeEnd() {
    if (state == State::PlayingOnce && music != nullptr && Mixer()->PlayingMusic() == 0) state = State::Over;
}

void SdlMusic::Resume() {
    NoticeEnd();
    if (state == State::PlayingOnce || state == State::Over) return;
    if (state == State::Looping) RememberPlace();
    PlayFrom(place, State::PlayingOnce);
}

void SdlMusic::Pause() {
    NoticeEnd();
    if (state != State::Looping && state != State::PlayingOnce) return;
    RememberPlace();
    if (music != nullptr) Mixer()->PauseMusic();
    state = State::Paused;
}

void SdlMusic::Stop() {
    if (music != nullptr) Mixer()->HaltMusic();
    state = State::Stopped;
    place = 0;
}

bool SdlMusic::IsSounding() const { return music != nullptr && Mixer()->PlayingMusic() != 0 && state != State::Paused; }

void SdlMusic::Release() {
    NoticeEnd();
    if (IsSounding()) RememberPlace();
    Unload();
}

void SdlMusic::TakeUp() {
    if (state == State::Looping || state == State::PlayingOnce) PlayFrom(place, state);
}

}  // namespace prismfall
