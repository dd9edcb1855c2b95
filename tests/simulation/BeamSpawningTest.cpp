// How beams come into play, and how fast.
#include "simulation/BeamSpawning.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

CLine* Spawn(TestGame& game, double column, double direction, double colour) {
    for (const double number : {column, direction, colour}) game.Machine().QueueRandom(number);
    return CreateLine(game.Main(), nullptr, false, 20);
}

TEST(CreateLine, ARandomBeamByItsNumbers) {
    struct Case {
        double column, direction, colour;
        int x;
        std::int32_t expectedDirection, expectedColor;
    };
    constexpr Case kCases[] = {
        {0.0, 0.0, 0.0, 21, kRightwards, 0},
        {19.999 / 642, 0.5, 0.2499, 21, kRightwards, 0},
        {20.001 / 642, 0.50001, 0.25, 41, kLeftwards, 1},
        {0.5, 0.99, 0.4999, 341, kLeftwards, 1},
        {639.99 / 642, 0.3, 0.5, 641, kRightwards, 2},
        {640.01 / 642, 0.7, 0.7499, 661, kLeftwards, 2},
        {0.999999, 0.7, 0.75, 661, kLeftwards, 3},
        {0.25, 0.7, 0.9999, 181, kLeftwards, 3},
    };
    for (const Case& c : kCases) {
        TestGame game;
        const VMain& main = game.Play(kArcadeGame);
        const CLine* beam = Spawn(game, c.column, c.direction, c.colour);
        ASSERT_EQ(main.Lines.size(), 1U);
        EXPECT_EQ(main.Lines[0], beam);
        const std::string x = std::to_string(c.x);
        EXPECT_EQ(InShort(*beam),
                  x + ",20 " + x + (c.expectedDirection == kRightwards ? ",20 right" : ",20 left") + " growing 5");
        EXPECT_EQ(beam->Color, c.expectedColor) << c.colour;
        EXPECT_EQ(beam->XStartOrg, c.x);
        EXPECT_TRUE(beam->LinkedLines.empty());
    }
}

TEST(CreateLine, PassesOverColumnsThatAreTaken) {
    TestGame game;
    VMain& main = game.Play(kArcadeGame);
    game.AddBeam(41, 20, 50, 29, 0).Deleted = true;  // a dying one takes its column too
    game.AddBeam(61, 200, 90, 229, 0);
    game.AddBeam(100, 200, 81, 219, 0);  // a head takes none
    for (const double taken : {1.5, 2.5, 1.0}) game.Machine().QueueRandom(taken * 20 / 642);
    EXPECT_EQ(Spawn(game, 3.5 * 20 / 642, 0, 0)->XStart, 81);
    LineCreator_Timer(main);
    EXPECT_EQ(main.Lines.size(), 5U);
    EXPECT_EQ(main.Lines.back()->YStart, 20);
}

TEST(CreateLine, GivesUpWhenEveryColumnIsTaken) {
    TestGame game;
    VMain& main = game.Play(kArcadeGame);
    for (int column = 0; column < 32; ++column) game.AddBeam(21 + 20 * column, 100, 31 + 20 * column, 110, 0);
    game.Machine().QueueRandom(0.9999);
    EXPECT_EQ(CreateLine(main, nullptr, false, 40)->XStart, 661) << "one is free";
    game.Machine().QueueRandom(0.125);
    EXPECT_EQ(CreateLine(main, nullptr, false, 20), nullptr);
    EXPECT_EQ(game.Machine().Random(), 0.125) << "no number is drawn";
    LineCreator_Timer(main);
    EXPECT_EQ(main.Lines.size(), 33U);
}

TEST(CreateLine, TheNextSegmentOfAChain) {
    struct Case {
        std::int32_t mode;
        int headX;
        bool simulate;
        const char* segment;
        std::int16_t puzzleLineNr;
    };
    constexpr Case kCases[] = {
        {kArcadeGame, 150, false, "150,150 150,150 left growing 5", 0},
        {kArcadeGame, 50, false, "50,150 50,150 right growing 5", 0},
        {kPuzzleGame, 150, false, "150,150 150,150 left growing 5", 7},
        {kSolutionReplay, 150, true, "150,150 150,150 left growing 5", 7},
    };
    for (const Case& c : kCases) {
        TestGame game;
        VMain& main = game.Play(c.mode);
        CLine& source = game.AddBeam(100, 100, c.headX, 150, 3);
        source.PuzzleLineNr = 7;
        source.XStartOrg = std::int16_t{21};
        source.Thicknes = 3;
        source.Deleted = true;
        source.StoppingLines.push_back(&source);
        const std::string sourceBefore = InShort(source);
        CLine* segment = CreateLine(main, &source, c.simulate, 99);
        EXPECT_EQ(InShort(*segment), c.segment) << "live, even if its source is dying";
        EXPECT_EQ(segment->Color, 3);
        EXPECT_EQ(segment->PuzzleLineNr, c.puzzleLineNr);
        EXPECT_FALSE(segment->XStartOrg);
        EXPECT_TRUE(segment->StoppingLines.empty());
        EXPECT_EQ(segment->LinkedLines, std::vector<CLine*>{&source});
        EXPECT_EQ(source.LinkedLines, std::vector<CLine*>{segment});
        EXPECT_EQ(InShort(source), sourceBefore);
        EXPECT_EQ(main.Lines.size(), c.simulate ? 1U : 2U);
    }
}

TEST(CLine, CopyTakesAllButListsAndNumber) {
    TestGame game;
    game.Play(kPuzzleGame);
    CLine& beam = game.AddBeam(100, 100, 50, 150, 3, kWaiting);
    beam.XStartOrg = std::int16_t{81};
    beam.Thicknes = 4;
    beam.Deleted = beam.DeletedByFastLine = true;
    beam.PuzzleLineNr = 5;
    beam.LinkedLines.push_back(&beam);
    beam.StoppingLines.push_back(&beam);
    CLine copy;
    copy.Copy(beam);
    EXPECT_EQ(InShort(copy), "100,100 50,150 left waiting 4 dying fast");
    EXPECT_EQ(copy.Color, 3);
    EXPECT_EQ(copy.XStartOrg, 81);
    EXPECT_EQ(copy.PuzzleLineNr, 0);
    EXPECT_TRUE(copy.LinkedLines.empty() && copy.StoppingLines.empty());
}

TEST(SetLevelSpeed, IntervalsByLevel) {
    struct Case {
        std::int16_t level;
        int creator, extender;
    };
    constexpr Case kCases[] = {{1, 2500, 75}, {2, 2000, 60}, {3, 1600, 48}, {4, 1280, 38}, {5, 1024, 31},
                               {6, 819, 25},  {7, 655, 20},  {8, 524, 16},  {9, 419, 13},  {10, 336, 10},
                               {11, 268, 8},  {12, 215, 6},  {23, 18, 1},   {24, 15, 1},   {60, 1, 1},
                               {32767, 1, 1}, {0, 2500, 75}, {-5, 2500, 75}};
    TestGame game;
    VMain& main = game.Play(kArcadeGame);
    for (const Case& c : kCases) {
        main.Level = c.level;
        SetLevelSpeed(main);
        EXPECT_EQ(game.Machine().Timers().Interval(Timer::LineCreator), c.creator) << "level " << c.level;
        EXPECT_EQ(game.Machine().Timers().Interval(Timer::LineExtender), c.extender) << "level " << c.level;
    }
}

}  // namespace
}  // namespace prismfall
