#include "audio/Music.h"

#include <algorithm>
#include <array>

namespace prismfall {

namespace {

struct LevelTrack {
    std::array<std::int16_t, 5> numbers;  // Arcade levels and puzzles alike
    std::string_view file;
};

constexpr std::array<LevelTrack, 9> kLevelTracks = {{
    {{1, 16, 22, 28, 43}, "Side_Scroller-003_Sequence_1_-_Briefing.mp3"},
    {{2, 17, 23, 29, 44}, "Side_Scroller-019_Level_8_-_Passsage.mp3"},
    {{3, 18, 24, 30, 45}, "Side_Scroller-011_Sequence_2_-_Discovery.mp3"},
    {{4, 10, 25, 31, 37}, "Side_Scroller-014_Level_6_-_Ice.mp3"},
    {{5, 11, 26, 32, 38}, "Side_Scroller-010_Level_4_-_Forest.mp3"},
    {{6, 12, 27, 33, 39}, "Side_Scroller-024_Level_11_-_Silo.mp3"},
    {{7, 13, 19, 34, 40}, "Side_Scroller-025_Sequence_10_-_Menu.mp3"},
    {{8, 14, 20, 35, 41}, "Side_Scroller-030_Ending_2.mp3"},
    {{9, 15, 21, 36, 42}, "Side_Scroller-Ocean.mp3"},
}};

}  // namespace

void PlayMusicFile(const Audio& audio, std::string_view file, std::int16_t volume) {
    if (!audio.settings.Music) return;
    audio.player.MusicClose();
    if (const int failure = audio.player.MusicOpen(file); failure != 0) {
        audio.boxes.ShowMessageBox(audio.player.MusicFailureText(failure));
        return;
    }
    SetMusicVolume(audio, volume);
    audio.player.MusicPlayLooping();
}

void PlayLevelMusic(const Audio& audio, std::int16_t number) {
    for (const LevelTrack& track : kLevelTracks)
        if (std::ranges::find(track.numbers, number) != track.numbers.end())
            return PlayMusicFile(audio, track.file, kMusicVolume);
}

void SetMusicVolume(const Audio& audio, std::int16_t volume) {
    if (audio.settings.Music) audio.player.MusicSetVolume(volume);
}

void StopMusic(const Audio& audio) {
    if (!audio.settings.Music) return;
    audio.player.MusicStop();
    audio.player.MusicClose();
}

void PauseMusic(const Audio& audio) {
    if (audio.settings.Music) audio.player.MusicPause();
}

void ResumeMusic(const Audio& audio) {
    if (audio.settings.Music) audio.player.MusicResume();
}

}  // namespace prismfall
