// Points, levels and their speed, and the pop-up.
#include "game/Scoring.h"

#include <gtest/gtest.h>

#include "game/GameTimers.h"
#include "simulation/Playfield.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

TEST(AddScore, PointsAndLevels) {
    struct Case {
        std::int16_t n, score, high, level, count;
        int scoreAfter, highAfter, levelAfter, countAfter;
        const char* popUp = "";
    };
    for (const Case& c : {
             Case{1, 0, 500, 1, 22, 10, 500, 1, 23},
             {1, 490, 500, 1, 23, 500, 500, 2, 0},
             {2, 0, 500, 2, 29, 20, 500, 2, 31, "20"},
             {2, 490, 500, 2, 30, 510, 510, 3, 0, "20"},
             {3, 470, 500, 5, 54, 510, 510, 6, 0, "40"},
             {5, 490, 100, 10, 90, 650, 650, 10, 95, "160"},
             {12, 0, 0, 1, 500, 20480, 20480, 2, 0, "20480"},
             {13, 0, 0, 45, 362, 32767, 32767, 45, 375, "32767"},
             {32767, 0, 0, 45, 375, 32767, 32767, 46, 0, "32767"},
             {1, 32760, 0, 32767, 32766, 32767, 32767, 32767, 0},
         }) {
        TestGame game(Mode::ArcadeGame);
        VMain& main = game.Main();
        main.settings.Music = true;
        main.Score = c.score;
        main.HighScore = c.high;
        main.Level = c.level;
        main.LevelLineCount = c.count;
        main.VHighScore.text = main.VLevel.text = "old";
        AddScore(main, {.N = c.n});
        EXPECT_EQ(main.VScore.text, std::to_string(c.scoreAfter));
        EXPECT_EQ(main.VHighScore.text, c.scoreAfter > c.high ? std::to_string(c.highAfter) : "old");
        EXPECT_EQ(main.VLevel.text, c.countAfter == 0 ? std::to_string(c.levelAfter) : "old");
        EXPECT_EQ(std::tuple(main.Score, main.HighScore, main.Level, main.LevelLineCount),
                  std::tuple(c.scoreAfter, c.highAfter, c.levelAfter, c.countAfter));
        EXPECT_EQ(main.LabelMulti.visible ? main.LabelMulti.text : "", c.popUp);
        EXPECT_EQ(game.Machine().Timers().IsOn(Timer::TimerMulti), main.LabelMulti.visible);
        EXPECT_EQ(game.TakePrinted().find("music open") != std::string::npos, c.countAfter == 0 && c.levelAfter <= 45);
    }
}

TEST(PopUp, FloatsFromBesideTheCollision) {
    for (const auto& [direction, sumX, left, drift] :
         {std::tuple{Heading::Rightwards, std::int16_t{220}, 95.0F, -1.0F}, {Heading::Leftwards, 221, 110.5F, 1.0F}}) {
        TestGame game(Mode::ArcadeGame);
        VMain& main = game.Main();
        Element& label = main.LabelMulti;
        main.MultiDirection = direction;
        main.MultiColor = BeamColor::Yellow;
        for (const int ticks : {5, 7}) {  // the second takes over the label
            AddScore(main, {2, sumX, 620});
            for (int tick = 0; tick <= ticks; ++tick) {
                EXPECT_EQ(label.visible, tick < 7) << "tick " << tick;
                EXPECT_EQ(game.Machine().Timers().IsOn(Timer::TimerMulti), tick < 7);
                EXPECT_EQ(label.left, left + drift * static_cast<float>(tick));
                EXPECT_EQ(label.top, static_cast<float>(300 + tick));
                EXPECT_EQ(label.colour, tick < 5 ? LineColors[3] : LineColorsLower[3]) << "tick " << tick;
                AddScore(main, {.N = 1});  // leaves it alone
                TimerMulti_Timer(main);
            }
        }
    }
}

TEST(SetLevelSpeed, IntervalsByLevel) {
    TestGame game(Mode::ArcadeGame);
    const auto& timers = game.Machine().Timers();
    for (const auto& [level, creator, extender] :
         {std::tuple{-5, 2500, 75}, {1, 2500, 75}, {5, 1024, 31}, {23, 18, 1}, {32767, 1, 1}}) {
        game.Main().Level = static_cast<std::int16_t>(level);
        SetLevelSpeed(game.Main());
        EXPECT_EQ(timers.Interval(Timer::LineCreator), creator) << "level " << level;
        EXPECT_EQ(timers.Interval(Timer::LineExtender), extender) << "level " << level;
    }
}

}  // namespace
}  // namespace prismfall
