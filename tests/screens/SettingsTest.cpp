// What is kept from run to run: the reading and writing of the store.
#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>

#include "screens/SettingsStore.h"
#include "tests/support/TestGame.h"
#include "tools/headless/StateDump.h"

namespace prismfall {
namespace {

TEST(Settings, NumbersAreAnOptionalSignAndDigits) {
    struct Case {
        const char* text;
        int startLevel;  // 1 stands for a text that counts as missing
    };
    for (const Case& row :
         {Case{"7", 7},         Case{"+5", 5},          Case{"-5", -5},   Case{"0", 0},      Case{"007", 7},
          Case{"32767", 32767}, Case{"-32768", -32768}, Case{"32768", 1}, Case{"-32769", 1}, Case{"99999", 1},
          Case{"", 1},          Case{" 5", 1},          Case{"5 ", 1},    Case{"5x", 1},     Case{"x", 1},
          Case{"5.0", 1},       Case{"+", 1},           Case{"-", 1},     Case{"+-5", 1},    Case{"-+5", 1},
          Case{"++5", 1},       Case{"0x5", 1},         Case{"True", 1}}) {
        TestGame game;
        game.Machine().PutSetting("General", "StartLevel", row.text);
        EXPECT_EQ(game.Load().StartLevel, row.startLevel) << '"' << row.text << '"';
    }
}

TEST(Settings, BooleansAreReadWithoutRegardToCase) {
    for (const char* text : {"True", "true", "TRUE", "tRuE", "False", "false", "FALSE"}) {
        TestGame game;
        for (const char* key : {"Music", "SoundEffects", "PlayFirstTime"})
            game.Machine().PutSetting("General", key, text);
        game.Machine().PutSetting("SolvedPuzzles", "Puzzle45", text);
        const VMain& main = game.Load();
        const bool value = text[0] == 'T' || text[0] == 't';
        EXPECT_EQ(main.Music, value) << text;
        EXPECT_EQ(main.SoundEffects, value) << text;
        EXPECT_EQ(main.PlayFirstTime, value) << text;
        EXPECT_EQ(main.SolvedPuzzles[44], value) << text;
    }
    for (const char* text : {"", "1", "0", "-1", "Tru", "Truee", " True", "yes", "No"}) {
        TestGame game;
        game.Machine().PutSetting("General", "Music", text);
        game.Machine().PutSetting("SolvedPuzzles", "Puzzle1", text);
        const VMain& main = game.Load();
        EXPECT_TRUE(main.Music) << text;
        EXPECT_FALSE(main.SolvedPuzzles[0]) << text;
    }
}

TEST(Settings, AnyStateComesBackFromAFullStore) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto number = [&] { return static_cast<std::int16_t>(random()); };
    TestGame game;
    game.QuietStore().Load();
    for (int round = 0; round < 50; ++round) {
        VMain& old = game.Main();
        old.PlayFirstTime = random() % 2 == 0;
        old.Music = random() % 2 == 0;
        old.SoundEffects = random() % 2 == 0;
        old.StartLevel = number();
        for (std::size_t row = 1; row <= kScoreRows; ++row) {
            old.RowScore[row] = number();
            old.RowLevel[row] = number();
            old.RowEndLevel[row] = number();
        }
        for (std::size_t puzzle = 0; puzzle < kPuzzleCount; ++puzzle) old.SolvedPuzzles[puzzle] = random() % 2 == 0;
        const auto everything = [](const VMain& main) {
            std::ostringstream text;
            PrintSettings(text, main, 0);
            for (const Boolean solved : main.SolvedPuzzles) text << solved;
            return text.str();
        };
        const std::string before = everything(old);
        SaveSettings(old);
        EXPECT_EQ(game.Machine().Store().size(), 79U);
        const VMain& fresh = game.Load();
        EXPECT_EQ(everything(fresh), before);
        EXPECT_EQ(fresh.HighScore, fresh.RowScore[1]);
        EXPECT_EQ(fresh.VHighScore.text, std::to_string(fresh.RowScore[1]));
    }
}

}  // namespace
}  // namespace prismfall
