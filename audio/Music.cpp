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

void PlayMusicFile(const VMain& main, std::string_view file, std::int16_t volume) {
    if (!main.Music) return;
    Platform& player = main.platform;
    player.MusicClose();
    if (const int failure = player.MusicOpen(file); failure != 0) {
        player.ShowMessageBox(player.MusicFailureText(failure));
        return;
    }
    SetMusicVolume(main, volume);
    player.MusicPlayLooping();
}

void SetMusicVolume(const VMain& main, std::int16_t volume) {
    if (main.Music) main.platform.MusicSetVolume(volume);
}

void PlayLevelMusic(const VMain& main, std::int16_t number) {
    for (const LevelTrack& track : kLevelTracks)
        if (std::ranges::find(track.numbers, number) != track.numbers.end())
            return PlayMusicFile(main, track.file, kMusicVolume);
}

void StopMusic(const VMain& main) {
    if (!main.Music) return;
    main.platform.MusicStop();
    main.platform.MusicClose();
}

void PauseMusic(const VMain& main) {
    if (main.Music) main.platform.MusicPause();
}

void ResumeMusic(const VMain& main) {
    if (main.Music) main.platform.MusicResume();
}

void SetMusic(VMain& main, Boolean value) {
    if (value == main.Music) return;
    if (!value) {
        StopMusic(main);
        main.Music = false;
        return;
    }
    main.Music = true;
    if (main.GameMode == kMainMenu || main.GameMode == kPuzzleMenu) PlayMusicFile(main, kIntroTrack, kMusicVolume);
    if (main.GameMode == kPuzzleGame) PlayLevelMusic(main, main.CurrentPuzzle);
    if (main.GameMode == kArcadeGame) PlayLevelMusic(main, main.Level);
}

void TimerPlayIntro_Timer(VMain& main) {
    PlayMusicFile(main, kIntroTrack, kMusicVolume);
    main.platform.StopTimer(Timer::TimerPlayIntro);
}

}  // namespace prismfall
