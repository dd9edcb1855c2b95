// Which track plays when, and the sounds that the program carries.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <string>

#include "audio/Music.h"
#include "audio/SoundResources.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

std::string Opened(std::string_view file) {
    return "music close\nmusic open \"" + std::string(file) + "\"\nmusic volume 900\nmusic play\n";
}

// The rows of the table, each with the numbers that it serves.
struct Row {
    std::array<int, 5> numbers;
    std::string_view file;
};
constexpr Row kRows[] = {{{1, 16, 22, 28, 43}, "Side_Scroller-003_Sequence_1_-_Briefing.mp3"},
                         {{2, 17, 23, 29, 44}, "Side_Scroller-019_Level_8_-_Passsage.mp3"},
                         {{3, 18, 24, 30, 45}, "Side_Scroller-011_Sequence_2_-_Discovery.mp3"},
                         {{4, 10, 25, 31, 37}, "Side_Scroller-014_Level_6_-_Ice.mp3"},
                         {{5, 11, 26, 32, 38}, "Side_Scroller-010_Level_4_-_Forest.mp3"},
                         {{6, 12, 27, 33, 39}, "Side_Scroller-024_Level_11_-_Silo.mp3"},
                         {{7, 13, 19, 34, 40}, "Side_Scroller-025_Sequence_10_-_Menu.mp3"},
                         {{8, 14, 20, 35, 41}, "Side_Scroller-030_Ending_2.mp3"},
                         {{9, 15, 21, 36, 42}, "Side_Scroller-Ocean.mp3"}};

std::string_view FileOf(int number) {
    for (const Row& row : kRows)
        if (std::ranges::find(row.numbers, number) != row.numbers.end()) return row.file;
    return {};
}

TEST(Music, EveryNumberHasItsTrackAndOthersNone) {
    TestGame game;
    VMain& main = game.Load();
    for (const int number : {-32768, -1, 0, 46, 32767}) {
        PlayLevelMusic(main, static_cast<std::int16_t>(number));
        EXPECT_EQ(game.TakePrinted(), "") << number;
    }
    for (std::int16_t number = 1; number <= 45; ++number) {
        PlayLevelMusic(main, number);
        EXPECT_EQ(game.TakePrinted(), Opened(FileOf(number))) << number;
    }
}

TEST(Music, IsSwitchedAsAWhole) {
    for (int mode = 0; mode <= 4; ++mode) {
        TestGame game;
        VMain& main = game.Load();
        main.GameMode = mode;
        main.CurrentPuzzle = 9;
        main.Level = 12;
        SetMusic(main, true);
        EXPECT_EQ(game.TakePrinted(), "") << "it is on already";
        SetMusic(main, false);
        EXPECT_EQ(game.TakePrinted(), "music stop\nmusic close\n");
        EXPECT_FALSE(main.Music);
        SetMusic(main, false);
        PlayMusicFile(main, "x.mp3", 900);
        PlayLevelMusic(main, 1);
        SetMusicVolume(main, 5);
        PauseMusic(main);
        ResumeMusic(main);
        StopMusic(main);
        TimerPlayIntro_Timer(main);
        EXPECT_EQ(game.TakePrinted(), "") << "while it is off nothing reaches the player";
        SetMusic(main, true);
        const std::string kStarted[] = {Opened("Orvane-Aurora_Borealis.mp3"), Opened("Orvane-Aurora_Borealis.mp3"),
                                        Opened(FileOf(9)), Opened(FileOf(12)), ""};
        EXPECT_EQ(game.TakePrinted(), kStarted[mode]) << mode;
        EXPECT_TRUE(main.Music);
        PlayMusicFile(main, "x.mp3", 500);
        EXPECT_EQ(game.TakePrinted(), "music close\nmusic open \"x.mp3\"\nmusic volume 500\nmusic play\n");
    }
}

std::uint32_t Number(std::span<const std::byte> wave, std::size_t at, std::size_t bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = bytes; i-- > 0;) number = number << 8 | std::to_integer<std::uint32_t>(wave[at + i]);
    return number;
}

TEST(Sounds, AreWaveFilesOfTheirFormatAndLength) {
    struct Format {
        int id;
        std::uint32_t channels, rate, bits;
        double seconds;
    };
    constexpr Format kFormats[] = {{102, 1, 11025, 8, 0.196}, {103, 1, 22050, 16, 0.248}, {104, 1, 11025, 8, 0.680},
                                   {105, 1, 11025, 8, 1.732}, {106, 1, 44100, 16, 1.010}, {107, 2, 16000, 16, 0.576},
                                   {108, 1, 22050, 16, 0.030}};
    for (const Format& format : kFormats) {
        const std::span<const std::byte> wave = LoadSoundResource(format.id);
        ASSERT_GE(wave.size(), 44U) << format.id;
        EXPECT_EQ(std::memcmp(wave.data(), "RIFF", 4), 0);
        EXPECT_EQ(Number(wave, 4, 4), wave.size() - 8);
        EXPECT_EQ(std::memcmp(wave.data() + 8, "WAVEfmt ", 8), 0);
        EXPECT_EQ(Number(wave, 20, 2), 1U) << "PCM";
        EXPECT_EQ(Number(wave, 22, 2), format.channels) << format.id;
        EXPECT_EQ(Number(wave, 24, 4), format.rate) << format.id;
        const std::uint32_t frame = format.channels * format.bits / 8;
        EXPECT_EQ(Number(wave, 28, 4), format.rate * frame);
        EXPECT_EQ(Number(wave, 32, 2), frame);
        EXPECT_EQ(Number(wave, 34, 2), format.bits) << format.id;
        EXPECT_EQ(std::memcmp(wave.data() + 36, "data", 4), 0);
        EXPECT_EQ(Number(wave, 40, 4) % frame, 0U);
        EXPECT_GE(wave.size(), 44 + Number(wave, 40, 4));
        EXPECT_NEAR(Number(wave, 40, 4) / frame / static_cast<double>(format.rate), format.seconds, 0.0005)
            << format.id;
        std::set<std::byte> values(wave.begin() + 44, wave.end());
        EXPECT_GT(values.size(), 16U) << format.id << " is no silence";
    }
    for (const int id : {-1, 0, 1, 101, 109}) EXPECT_TRUE(LoadSoundResource(id).empty()) << id;
}

}  // namespace
}  // namespace prismfall
