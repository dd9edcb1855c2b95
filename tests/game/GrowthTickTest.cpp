// A growth tick as a whole: which beams move, what cuts it short, and what it adds up at its end.
#include "game/GrowthTick.h"

#include <gtest/gtest.h>

#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

TEST(GrowthTick, AWallCutsItShortAndWhatHadCollidedScoresNothing) {
    TestGame game(kArcadeGame,
                  "150,100 196,146 blue; 250,100 200,150 blue stopped; 64,300 14,350 green; 400,100 420,120 green");
    game.Main().GrowthToggle = 0;
    ExtendLines(game.Main());
    EXPECT_EQ(
        InShort(game.Main()),
        "150,100 196,146 blue stopped 4 dying; 250,100 200,150 blue stopped 4 dying; 64,300 13,351 green stopped; "
        "400,100 420,120 green; 13,351 13,351 green");
    EXPECT_EQ(Places(game.Main(), game.Beam(3).LinkedLines), "5");
    EXPECT_EQ(game.Main().Score, 0);
    EXPECT_EQ(game.Main().GrowthToggle, 1);
    ExtendLines(game.Main());
    EXPECT_EQ(InShort(game.Beam(4)) + "; " + InShort(game.Beam(5)), "400,100 421,121 green; 13,351 14,352 green");
    EXPECT_EQ(game.Main().GrowthToggle, 0);
}

TEST(GrowthTick, TheFloorEndsTheGameAndCutsItShort) {
    TestGame game(kPuzzleGame, "400,100 420,120 red; 100,500 185,585 blue; 300,300 350,350 green");
    ExtendLines(game.Main());
    EXPECT_EQ(InShort(game.Main()), "400,100 421,121 red; 100,500 185,585 blue; 300,300 350,350 green");
    EXPECT_FALSE(game.Main().GameRunning);
    EXPECT_EQ(game.TakePrinted(), "sound 5 sync\ndialog VPuzzleResult failed\n");
}

TEST(GrowthTick, ScoresAllItsHitsAtItsEndAndPaintsTheBlueLine) {
    TestGame game(kArcadeGame,
                  "150,100 104,146 green; 50,100 100,150 green stopped; 350,100 304,146 green; 250,100 300,150 green "
                  "stopped; 500,100 510,110 red stopped");
    VMain& main = game.Main();
    ExtendLines(main);
    EXPECT_EQ(main.Score, 20);
    EXPECT_EQ(main.LevelLineCount, 2);
    EXPECT_EQ(main.LabelMulti.left, (104 + 304) / 2);
    EXPECT_EQ(main.LabelMulti.top, 146 - 10);
    game.TakePrinted();
    game.Machine().SetPainting(true);
    ExtendLines(main);
    EXPECT_EQ(game.TakePrinted(), "line 14 60 670 60 0xFF0000 1\n");
    EXPECT_EQ(main.MultiSumX + main.MultiSumY, 0);
    EXPECT_EQ(main.Score, 20);
    main.GameMode = kPuzzleGame;
    ExtendLines(main);
    EXPECT_EQ(game.TakePrinted(), "") << "a puzzle has no such line";
}

TEST(GrowthTick, TwoHeadsThatMeetStopEachOther) {
    TestGame game(kPuzzleGame, "100,100 148,148 blue; 200,100 154,146 green");
    for (int i = 0; i < 4; ++i) ExtendLines(game.Main());
    EXPECT_EQ(Places(game.Main(), game.Beam(1).StoppingLines) + Places(game.Main(), game.Beam(2).StoppingLines), "21");
}

}  // namespace
}  // namespace prismfall
