// Points, levels and the pop-up.
#include "simulation/Scoring.h"

#include <gtest/gtest.h>

#include "simulation/Playfield.h"
#include "tests/support/TestField.h"

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
        TestField field(kArcadeGame);
        VMain& main = field.Main();
        main.Music = true;
        main.Score = c.score;
        main.HighScore = c.high;
        main.Level = c.level;
        main.LevelLineCount = c.count;
        main.VHighScore.text = main.VLevel.text = "old";
        AddScore(main, c.n);
        EXPECT_EQ(main.VScore.text, std::to_string(c.scoreAfter));
        EXPECT_EQ(main.VHighScore.text, c.scoreAfter > c.high ? std::to_string(c.highAfter) : "old");
        EXPECT_EQ(main.VLevel.text, c.countAfter == 0 ? std::to_string(c.levelAfter) : "old");
        EXPECT_EQ(std::tuple(main.Score, main.HighScore, main.Level, main.LevelLineCount),
                  std::tuple(c.scoreAfter, c.highAfter, c.levelAfter, c.countAfter));
        EXPECT_EQ(main.LabelMulti.visible ? main.LabelMulti.text : "", c.popUp);
        EXPECT_EQ(field.Machine().Timers().IsOn(Timer::TimerMulti), main.LabelMulti.visible);
        EXPECT_EQ(field.TakePrinted().find("music open") != std::string::npos, c.countAfter == 0 && c.levelAfter <= 45);
    }
}

TEST(PopUp, FloatsFromBesideTheCollision) {
    for (const auto& [direction, sumX, left, drift] :
         {std::tuple{kRightwards, std::int16_t{220}, 95.0F, -1.0F}, {kLeftwards, 221, 110.5F, 1.0F}}) {
        TestField field(kArcadeGame);
        VMain& main = field.Main();
        Element& label = main.LabelMulti;
        main.MultiSumX = sumX;
        main.MultiSumY = 620;
        main.MultiDirection = direction;
        main.MultiColor = 3;
        for (const int ticks : {5, 7}) {  // the second takes the label over
            AddScore(main, 2);
            for (int tick = 0; tick <= ticks; ++tick) {
                EXPECT_EQ(label.visible, tick < 7) << "tick " << tick;
                EXPECT_EQ(field.Machine().Timers().IsOn(Timer::TimerMulti), tick < 7);
                EXPECT_EQ(label.left, left + drift * static_cast<float>(tick));
                EXPECT_EQ(label.top, static_cast<float>(300 + tick));
                EXPECT_EQ(label.colour, tick < 5 ? LineColors[3] : LineColorsLower[3]) << "tick " << tick;
                AddScore(main, 1);  // leaves it alone
                TimerMulti_Timer(main);
            }
        }
    }
}

}  // namespace
}  // namespace prismfall
