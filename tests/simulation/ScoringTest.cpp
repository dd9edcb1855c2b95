// Points, levels and the pop-up.
#include "simulation/Scoring.h"

#include <gtest/gtest.h>

#include "simulation/Playfield.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

TEST(AddScore, PointsByCount) {
    struct Case {
        std::int16_t n, scoreBefore, highBefore;
        int scoreAfter, highAfter;
        const char* popUp;  // empty for none
    };
    constexpr Case kCases[] = {
        {1, 0, 500, 10, 500, ""},          {2, 0, 500, 20, 500, "20"},
        {3, 470, 500, 510, 510, "40"},     {4, 420, 500, 500, 500, "80"},
        {5, 490, 100, 650, 650, "160"},    {12, 0, 0, 20480, 20480, "20480"},
        {13, 0, 0, 32767, 32767, "32767"}, {32767, 0, 0, 32767, 32767, "32767"},
        {1, 32760, 0, 32767, 32767, ""},   {2, 32767, 32767, 32767, 32767, "20"},
    };
    for (const Case& c : kCases) {
        TestGame game;
        VMain& main = game.Play(kArcadeGame);
        main.Score = c.scoreBefore;
        main.HighScore = c.highBefore;
        main.VHighScore.text = "old";
        AddScore(main, c.n);
        EXPECT_EQ(main.Score, c.scoreAfter) << c.n;
        EXPECT_EQ(main.VScore.text, std::to_string(c.scoreAfter));
        EXPECT_EQ(main.HighScore, c.highAfter) << c.n;
        EXPECT_EQ(main.VHighScore.text, c.scoreAfter > c.highBefore ? std::to_string(c.highAfter) : "old");
        EXPECT_EQ(main.LabelMulti.visible, *c.popUp != 0) << c.n;
        EXPECT_EQ(main.LabelMulti.visible ? main.LabelMulti.text : "", c.popUp);
        EXPECT_EQ(game.Machine().Timers().IsOn(Timer::TimerMulti), main.LabelMulti.visible);
    }
}

TEST(AddScore, LevelsRiseAtTheirTargets) {
    struct Case {
        std::int16_t level, count, n, levelAfter, countAfter;
    };
    constexpr Case kCases[] = {
        {1, 22, 1, 1, 23},
        {1, 23, 1, 2, 0},
        {1, 23, 3, 2, 0},
        {2, 23, 1, 2, 24},
        {2, 31, 1, 3, 0},
        {5, 55, 1, 6, 0},
        {5, 54, 1, 5, 55},
        {10, 95, 2, 11, 0},
        {1, 500, 1, 2, 0},
        {1, 32767, 5, 2, 0},
        {32767, 32766, 1, 32767, 0},
        {32767, 32000, 9, 32767, 32009},
    };
    for (const Case& c : kCases) {
        TestGame game;
        VMain& main = game.Play(kArcadeGame);
        main.Music = true;
        main.Level = c.level;
        main.VLevel.text = "old";
        main.GameStartLevel = 1;
        main.LevelLineCount = c.count;
        const int interval = game.Machine().Timers().Interval(Timer::LineExtender);
        AddScore(main, c.n);
        EXPECT_EQ(main.Level, c.levelAfter) << c.level << ' ' << c.count;
        EXPECT_EQ(main.LevelLineCount, c.countAfter) << c.level << ' ' << c.count;
        EXPECT_EQ(main.GameStartLevel, 1);
        const bool rises = c.countAfter == 0;
        EXPECT_EQ(main.VLevel.text, rises ? std::to_string(c.levelAfter) : "old");
        EXPECT_EQ(game.TakePrinted().find("music open") != std::string::npos, rises && c.level <= kPuzzleCount);
        EXPECT_EQ(game.Machine().Timers().Interval(Timer::LineExtender), interval) << "that is the removal's work";
    }
}

TEST(PopUp, FloatsFromBesideTheCollision) {
    struct Case {
        std::int32_t direction;
        std::int16_t sumX;
        float left;
        float drift;
    };
    constexpr Case kCases[] = {{kRightwards, 220, 95, -1}, {kLeftwards, 220, 110, 1}, {kLeftwards, 221, 110.5F, 1}};
    for (const Case& c : kCases) {
        TestGame game;
        VMain& main = game.Play(kArcadeGame);
        main.MultiSumX = c.sumX;
        main.MultiSumY = 620;
        main.MultiDirection = c.direction;
        main.MultiColor = 3;
        AddScore(main, 2);
        for (int tick = 0; tick <= 7; ++tick) {
            EXPECT_EQ(main.LabelMulti.visible, tick < 7) << "tick " << tick;
            EXPECT_EQ(game.Machine().Timers().IsOn(Timer::TimerMulti), tick < 7);
            EXPECT_EQ(main.LabelMulti.left, c.left + c.drift * static_cast<float>(tick));
            EXPECT_EQ(main.LabelMulti.top, static_cast<float>(300 + tick));
            EXPECT_EQ(main.LabelMulti.colour, tick < 5 ? LineColors[3] : LineColorsLower[3]) << "tick " << tick;
            TimerMulti_Timer(main);
        }
    }
}

TEST(PopUp, ASecondOneTakesTheLabelOver) {
    TestGame game;
    VMain& main = game.Play(kArcadeGame);
    AddScore(main, 2);
    for (int tick = 0; tick < 6; ++tick) TimerMulti_Timer(main);
    AddScore(main, 3);
    EXPECT_EQ(main.LabelMulti.text, "40");
    EXPECT_EQ(main.LabelMulti.colour, LineColors[0]);
    for (int tick = 0; tick < 6; ++tick) TimerMulti_Timer(main);
    EXPECT_TRUE(main.LabelMulti.visible);
    AddScore(main, 1);
    EXPECT_EQ(main.LabelMulti.text, "40") << "a single collision leaves it alone";
    TimerMulti_Timer(main);
    EXPECT_FALSE(main.LabelMulti.visible);
}

}  // namespace
}  // namespace prismfall
