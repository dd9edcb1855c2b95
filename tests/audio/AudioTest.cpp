// Which track plays when, and the sounds that the program carries.
#include <gtest/gtest.h>

#include <algorithm>
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

std::uint32_t Number(std::span<const std::byte> wave, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t i = 4; i-- > 0;) number = number << 8 | std::to_integer<std::uint32_t>(wave[at + i]);
    return number;
}

// The check of the files themselves sees to their formats; the lengths tell whether each id has its own.
TEST(Sounds, EachIdHasItsOwn) {
    struct Sound {
        int id;
        double seconds;
    };
    constexpr Sound kSounds[] = {{102, 0.196}, {103, 0.248}, {104, 0.680}, {105, 1.732},
                                 {106, 1.010}, {107, 0.576}, {108, 0.030}};
    for (const Sound& sound : kSounds) {
        const std::span<const std::byte> wave = LoadSoundResource(sound.id);
        ASSERT_GE(wave.size(), 44U) << sound.id;
        const std::uint32_t bytesASecond = Number(wave, 28), bytes = Number(wave, 40);
        EXPECT_GE(wave.size(), 44 + bytes) << sound.id << " is whole";
        EXPECT_NEAR(bytes / static_cast<double>(bytesASecond), sound.seconds, 0.0005) << sound.id;
    }
    for (const int id : {-1, 0, 1, 101, 109}) EXPECT_TRUE(LoadSoundResource(id).empty()) << id;
}

}  // namespace
}  // namespace prismfall
