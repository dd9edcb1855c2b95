// One growth tick: who moves, what a step meets, and in which order. And the end of a game.
#include "game/GameEnd.h"
#include "game/GrowthTick.h"

#include <gtest/gtest.h>

#include "simulation/Playfield.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

constexpr std::int32_t kBlue = 0;
constexpr std::int32_t kGreen = 1;

TEST(GrowthTick, StepsAndTailsAtTheEntryLimit) {
    struct Case {
        std::int32_t mode;
        int head;  // YEnd before the tick; the tail is 10 above
        std::int16_t toggle;
        bool moves, tailFollows, isErased;
    };
    constexpr Case kCases[] = {
        {kArcadeGame, 63, 0, false, false, false}, {kArcadeGame, 63, 1, true, false, true},
        {kArcadeGame, 64, 0, true, true, false},   {kArcadeGame, 64, 1, true, true, false},
        {kArcadeGame, 65, 0, true, false, false},  {kPuzzleGame, 23, 0, false, false, false},
        {kPuzzleGame, 23, 1, true, false, false},  {kPuzzleGame, 23, 7, true, false, false},
        {kPuzzleGame, 24, 0, true, true, false},   {kPuzzleGame, 25, 0, true, false, false},
    };
    for (const Case& c : kCases) {
        for (const int sideways : {-1, 1}) {
            SCOPED_TRACE(std::to_string(c.mode) + " head " + std::to_string(c.head) + " toggle " +
                         std::to_string(c.toggle) + " way " + std::to_string(sideways));
            TestGame game;
            VMain& main = game.Play(c.mode);
            CLine& beam = game.AddBeam(300, c.head - 10, 300 + sideways * 10, c.head, kGreen);
            DrawLine(main, beam.XStart, beam.YStart, beam.XEnd, beam.YEnd, beam.Color, beam.Direction);
            main.GrowthToggle = c.toggle;
            ExtendLines(main);
            EXPECT_EQ(main.GrowthToggle, c.toggle == 0 ? 1 : 0);
            EXPECT_EQ(beam.YEnd, c.moves ? c.head + 1 : c.head);
            EXPECT_EQ(beam.XEnd, 300 + sideways * (c.moves ? 11 : 10));
            EXPECT_EQ(beam.YStart, c.tailFollows ? c.head - 1 : c.head - 10);
            EXPECT_EQ(beam.XStart, 300 + sideways * (c.tailFollows ? 9 : 0));
            EXPECT_EQ(game.Machine().Painted().PixelAt(300 + sideways, c.head - 9) == 0xFF000000U, c.isErased);
        }
    }
}

TEST(GrowthTick, AWallEndsTheSegmentAndCutsTheTickShort) {
    TestGame game;
    VMain& main = game.Play(kArcadeGame);
    game.AddBeam(150, 100, 196, 146, kBlue);  // strikes the next one
    game.AddBeam(250, 100, 200, 150, kBlue, kStopped);
    CLine& atWall = game.AddBeam(64, 300, 14, 350, kGreen);
    game.AddBeam(400, 100, 420, 120, kGreen);
    ExtendLines(main);
    EXPECT_EQ(InShort(main),
              "150,100 196,146 right stopped 4 dying\n250,100 200,150 left stopped 4 dying\n"
              "64,300 13,351 left stopped 5\n400,100 420,120 right growing 5\n13,351 13,351 right growing 5\n");
    EXPECT_EQ(main.Score, 0) << "what had collided scores nothing";
    CLine& next = *main.Lines.back();
    EXPECT_EQ(atWall.LinkedLines, std::vector<CLine*>{&next});
    EXPECT_EQ(next.LinkedLines, std::vector<CLine*>{&atWall});
    ExtendLines(main);
    EXPECT_EQ(InShort(next), "13,351 14,352 right growing 5");
    EXPECT_EQ(InShort(*main.Lines[3]), "400,100 421,121 right growing 5");
}

TEST(GrowthTick, WallsStandWhereTheyStand) {
    struct Case {
        int tailX, headX;
        const char* after;
    };
    constexpr Case kCases[] = {
        {65, 15, "65,300 14,351 left growing 5\n"},
        {64, 14, "64,300 13,351 left stopped 5\n13,351 13,351 right growing 5\n"},
        {618, 668, "618,300 669,351 right growing 5\n"},
        {619, 669, "619,300 670,351 right stopped 5\n670,351 670,351 left growing 5\n"},
    };
    for (const Case& c : kCases) {
        TestGame game;
        VMain& main = game.Play(kPuzzleGame);
        game.AddBeam(c.tailX, 300, c.headX, 350, kBlue);
        ExtendLines(main);
        EXPECT_EQ(InShort(main), c.after);
    }
}

TEST(GrowthTick, AWallComesBeforeTheFloorAndBeforeABeam) {
    TestGame game;
    VMain& main = game.Play(kPuzzleGame);
    game.AddBeam(34, 565, 14, 585, kBlue);
    game.AddBeam(10, 585, 14, 589, kBlue, kStopped);
    ExtendLines(main);
    EXPECT_EQ(InShort(*main.Lines[0]), "34,565 13,586 left stopped 5");
    EXPECT_TRUE(main.GameRunning);
    EXPECT_EQ(game.TakePrinted(), "");
    ExtendLines(main);
    EXPECT_FALSE(main.GameRunning) << "the new segment's step meets the floor";
}

TEST(GrowthTick, TheFloorEndsTheGameAndCutsTheTickShort) {
    TestGame game;
    VMain& main = game.Play(kPuzzleGame);
    const CLine& low = game.AddBeam(100, 500, 184, 584, kBlue);
    const CLine& behind = game.AddBeam(300, 300, 350, 350, kBlue);
    ExtendLines(main);
    EXPECT_TRUE(main.GameRunning) << "585 is a step as any other";
    ExtendLines(main);
    EXPECT_EQ(InShort(low), "100,500 185,585 right growing 5");
    EXPECT_EQ(InShort(behind), "300,300 351,351 right growing 5");
    EXPECT_EQ(game.TakePrinted(), "sound 5 sync\ndialog VPuzzleResult failed\n");
}

struct HitCase {
    const char* name;
    std::int32_t mode;
    std::int32_t otherColor;
    float thicknes;  // of the moving beam
    bool withAThird;
    const char* lines;
    const char* printed;
    std::size_t dying;
};

TEST(GrowthTick, WhatAHitLeadsTo) {
    constexpr HitCase kCases[] = {
        {"other colour", kPuzzleGame, kGreen, 5, false,
         "150,100 196,146 right stopped 5\n250,100 200,150 left stopped 5\n", "sound 1 async\n", 0},
        {"the moving beam is gone already", kPuzzleGame, kBlue, 0, false,
         "150,100 196,146 right stopped 0\n250,100 200,150 left stopped 5\n", "sound 1 async\n", 0},
        {"the last two of a puzzle", kPuzzleGame, kBlue, 5, false,
         "150,100 196,146 right stopped 4 dying\n250,100 200,150 left stopped 4 dying\n", "sound 4 sync\n", 2},
        {"the last two of a replay", kSolutionReplay, kBlue, 5, false,
         "150,100 196,146 right stopped 4 dying\n250,100 200,150 left stopped 4 dying\n", "sound 4 sync\n", 2},
        {"the last two of an Arcade game", kArcadeGame, kBlue, 5, false,
         "150,100 196,146 right stopped 4 dying\n250,100 200,150 left stopped 4 dying\n", "sound 2 async\n", 2},
        {"a third strikes the dying one", kArcadeGame, kBlue, 5, true,
         "150,100 196,146 right stopped 4 dying\n250,100 200,150 left stopped 4 dying\n"
         "180,80 221,121 right stopped 4 dying\n",
         "sound 2 async\nsound 2 async\n", 3},
    };
    for (const HitCase& c : kCases) {
        SCOPED_TRACE(c.name);
        TestGame game;
        VMain& main = game.Play(c.mode);
        main.CurrentPuzzle = 2;
        CLine& beam = game.AddBeam(150, 100, 196, 146, kBlue);
        beam.Thicknes = c.thicknes;
        CLine& other = game.AddBeam(250, 100, 200, 150, c.otherColor, kStopped);
        if (c.withAThird) game.AddBeam(180, 80, 221, 121, kBlue);
        ExtendLines(main);
        EXPECT_EQ(InShort(main), c.lines);
        EXPECT_EQ(game.TakePrinted(), c.printed);
        EXPECT_EQ(main.DyingLines.size(), c.dying);
        EXPECT_EQ(other.StoppingLines.at(0), &beam);
        EXPECT_EQ(main.Score, c.mode != kArcadeGame ? 0 : c.withAThird ? 20 : 10);
    }
}

TEST(GrowthTick, CollectsTheHitsOfATickForThePopUp) {
    TestGame game;
    VMain& main = game.Play(kArcadeGame);
    for (const int x : {100, 300}) {
        game.AddBeam(x + 50, 100, x + 4, 146, kGreen);
        game.AddBeam(x - 50, 100, x, 150, kGreen, kStopped);
    }
    ExtendLines(main);
    EXPECT_EQ(main.MultiSumX, 104 + 304);
    EXPECT_EQ(main.MultiSumY, 146 + 146);
    EXPECT_EQ(main.MultiColor, kGreen);
    EXPECT_EQ(main.MultiDirection, kLeftwards);
    EXPECT_EQ(main.Score, 20);
    EXPECT_EQ(main.LevelLineCount, 2);
    ExtendLines(main);
    EXPECT_EQ(main.MultiSumX, 0);
    EXPECT_EQ(main.MultiSumY, 0);
}

TEST(GrowthTick, TwoHeadsThatMeetStopOrDieAtOnce) {
    TestGame game;
    VMain& main = game.Play(kPuzzleGame);
    game.AddBeam(100, 100, 148, 148, kBlue);
    game.AddBeam(200, 100, 154, 146, kGreen);
    for (int i = 0; i < 4; ++i) ExtendLines(main);
    for (const CLine* beam : main.Lines) {
        EXPECT_EQ(beam->RunMode, kStopped);
        EXPECT_EQ(beam->StoppingLines.size(), 1U) << "each stands against the other";
    }
}

TEST(GameOverSweep, TurnsAllBeamsGreyInBandsFromTheFloorUpwards) {
    TestGame game;
    VMain& main = game.Play(kArcadeGame);
    game.AddBeam(300, 545, 330, 575, kBlue);
    game.AddBeam(300, 560, 285, 575, kBlue).Deleted = true;
    game.Machine().SetPainting(true);
    const std::int64_t before = game.Machine().Clock();
    GameOverSweep(main);
    EXPECT_EQ(game.Machine().Clock() - before, 290) << "29 bands of 10 ms";
    EXPECT_EQ(main.SweepY, 6);
    std::string cores;
    std::istringstream printed(game.TakePrinted());
    for (std::string line; std::getline(printed, line);)
        if (line.find("grey1 5") != std::string::npos) cores += line.substr(5, line.find(" grey1") - 5) + '\n';
    EXPECT_EQ(cores,
              "321 566 330 575\n294 566 285 575\n"  // from 566 to 586, cut off at the heads
              "301 546 321 566\n300 560 294 566\n"  // from 546 to 566, cut off at the second tail
              "300 545 301 546\n");
}

}  // namespace
}  // namespace prismfall
