// What the mouse does on the playfield: which beam a click means, what it does to it, and the run of a speeded beam.
#include "game/PlayerInput.h"

#include <gtest/gtest.h>

#include "game/GrowthTick.h"
#include "simulation/BeamControl.h"
#include "simulation/Playfield.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

constexpr std::int32_t kBlue = 0;
constexpr std::int32_t kGreen = 1;
constexpr MouseButton kLeft = MouseButton::Left;
constexpr MouseButton kRight = MouseButton::Right;

TEST(FindNearestLine, TakesTheNearestHeadWithinReach) {
    TestGame game;
    VMain& main = game.Play(kPuzzleGame);
    CLine& first = game.AddBeam(100, 100, 200, 200, kBlue);
    CLine& second = game.AddBeam(300, 100, 220, 180, kBlue, kWaiting);
    game.AddBeam(100, 300, 200, 400, kBlue, kStopped);
    struct Case {
        std::int16_t x, y;
        const CLine* expected;
    };
    const Case kCases[] = {{200, 200, &first},  {170, 240, nullptr},      {165, 235, &first},      {210, 190, &first},
                           {211, 190, &second}, {150, 150, nullptr},      {200, 400, nullptr},     {200, 249, &first},
                           {200, 250, nullptr}, {-32768, 32767, nullptr}, {32767, -32768, nullptr}};
    for (const Case& c : kCases) EXPECT_EQ(FindNearestLine(main, c.x, c.y), c.expected) << c.x << ',' << c.y;
    std::swap(main.Lines[0], main.Lines[1]);
    EXPECT_EQ(FindNearestLine(main, 210, 190), &second) << "of two as near the first in Lines";
}

struct ClickCase {
    const char* name;
    std::int32_t mode;
    int yEnd;  // of the beam that is clicked, which runs to the right from (100, yEnd - 30)
    std::int32_t runMode;
    MouseButton button;
    bool hasTarget;  // a beam of the same colour across its way, from (600, 400) down to the left
    const char* first;
    const char* second;  // in Lines after the target; empty for none
    const char* printed;
};

TEST(Form_MouseDown, DoesWhatTheTableSays) {
    constexpr ClickCase kCases[] = {
        {"bend in the entry zone", kArcadeGame, 59, kGrowing, kLeft, true, "130,59 130,59 left growing 5", "", ""},
        {"split below it", kArcadeGame, 60, kGrowing, kLeft, true, "100,30 130,60 right stopped 5",
         "130,60 130,60 left growing 5", ""},
        {"start a waiting beam", kPuzzleGame, 130, kWaiting, kLeft, true, "100,100 130,130 right growing 5", "", ""},
        {"split in a puzzle", kPuzzleGame, 130, kGrowing, kLeft, true, "100,100 130,130 right stopped 5",
         "130,130 130,130 left growing 5", ""},
        {"split a waiting beam of an Arcade game", kArcadeGame, 130, kWaiting, kLeft, true,
         "100,100 130,130 right stopped 5", "130,130 130,130 left growing 5", ""},
        {"refused in the entry zone", kArcadeGame, 50, kGrowing, kRight, false, "100,20 130,50 right growing 5", "",
         "sound 3 async\n"},
        {"guarded above a puzzle's line too", kPuzzleGame, 19, kGrowing, kRight, false,
         "100,-11 130,19 right growing 5", "", "sound 3 async\n"},
        {"refused below it", kArcadeGame, 130, kGrowing, kRight, false, "100,100 130,130 right growing 5", "",
         "sound 3 async\n"},
        {"speeded in the entry zone", kArcadeGame, 50, kGrowing, kRight, true, "142,62 536,456 right stopped 4 dying",
         "", "sound 2 async\n"},
        {"speeded below it", kArcadeGame, 130, kGrowing, kRight, true, "100,100 511,511 right stopped 4 dying", "",
         "sound 2 async\n"},
        {"speeded in a puzzle, sounds twice", kPuzzleGame, 130, kGrowing, kRight, true,
         "100,100 511,511 right stopped 4 dying", "", "sound 4 async\nsound 4 sync\n"},
        {"started and speeded", kPuzzleGame, 130, kWaiting, kRight, true, "100,100 511,511 right stopped 4 dying", "",
         "sound 4 async\nsound 4 sync\n"},
        {"to the ground in a puzzle", kPuzzleGame, 130, kWaiting, kRight, false, "100,100 585,585 right growing 5", "",
         ""},
    };
    for (const ClickCase& c : kCases) {
        SCOPED_TRACE(c.name);
        TestGame game;
        VMain& main = game.Play(c.mode);
        main.CurrentPuzzle = 2;
        CLine& beam = game.AddBeam(100, c.yEnd - 30, 130, c.yEnd, kBlue, c.runMode);
        // Both runs meet this one on a pixel of its own.
        if (c.hasTarget)
            game.AddBeam(600, 400 + (c.yEnd < 60 ? 0 : 30), 440, 560 + (c.yEnd < 60 ? 0 : 30), kBlue, kStopped);
        Form_MouseDown(main, c.button, 131.4F, static_cast<float>(c.yEnd) - 0.4F);
        EXPECT_EQ(InShort(beam), c.first);
        const std::size_t others = c.hasTarget ? 2 : 1;
        EXPECT_EQ(main.Lines.size() > others ? InShort(*main.Lines[others]) : "", c.second);
        EXPECT_EQ(game.TakePrinted(), c.printed);
        EXPECT_EQ(main.LookAheadBeams.Count(), 0U);
    }
}

TEST(Form_MouseDown, RoundsHalvesToTheEvenPixel) {
    TestGame game;
    VMain& main = game.Play(kPuzzleGame);
    CLine& beam = game.AddBeam(100, 100, 150, 150, kBlue, kWaiting);
    Form_MouseDown(main, kLeft, 150, 199.75F);
    EXPECT_EQ(beam.RunMode, kWaiting) << "50 away";
    Form_MouseDown(main, kLeft, 150, 99.5F);
    EXPECT_EQ(beam.RunMode, kWaiting) << "rounds to 100, 50 away";
    Form_MouseDown(main, kLeft, 150, 100.5F);
    EXPECT_EQ(beam.RunMode, kWaiting) << "rounds to 100 too";
    Form_MouseDown(main, kLeft, 150, 101.5F);
    EXPECT_EQ(beam.RunMode, kGrowing);
}

TEST(Form_DblClick, IsASecondLeftPressAtTheLastPlace) {
    TestGame game;
    VMain& main = game.Play(kArcadeGame);
    game.AddBeam(100, 100, 150, 150, kBlue);
    main.GameRunning = false;
    Form_MouseDown(main, kLeft, 150, 150);
    Form_DblClick(main);
    EXPECT_EQ(main.Lines.size(), 1U);
    main.GameRunning = true;
    Form_DblClick(main);
    EXPECT_EQ(main.Lines.size(), 2U) << "a press that does nothing is remembered as well";
}

TEST(SpeedUpLine, TheTailFollowsOnePixelAboveTheGrowthTicks) {
    for (const auto& [mode, limit] : {std::pair{kArcadeGame, 64}, std::pair{kPuzzleGame, 24}}) {
        for (const int headBefore : {limit - 2, limit - 1, limit}) {
            TestGame game;
            VMain& main = game.Play(mode);
            CLine& beam = game.AddBeam(100, headBefore - 4, 96, headBefore, kBlue);
            SpeedUpLine(main, beam, false);
            const int tail = headBefore == limit ? headBefore - 4 : limit - 2;
            EXPECT_EQ(beam.YStart, tail) << limit << ' ' << headBefore;
            EXPECT_EQ(beam.XStart, 100 - (tail - (headBefore - 4)));
        }
    }
}

TEST(SpeedUpLine, LooksAheadOnCopiesThroughABounce) {
    TestGame game;
    VMain& main = game.Play(kArcadeGame);
    CLine& beam = game.AddBeam(90, 70, 60, 100, kGreen);
    game.AddBeam(300, 120, 60, 360, kBlue, kStopped);
    const std::string before = InShort(main);
    EXPECT_TRUE(SpeedUpLine(main, beam, true));
    EXPECT_EQ(InShort(main), before);
    EXPECT_TRUE(beam.LinkedLines.empty());
    EXPECT_TRUE(main.Lines[1]->StoppingLines.empty());
    EXPECT_EQ(main.LookAheadBeams.Count(), 3U) << "the copy, the next segment, and the copy of that";
    EXPECT_EQ(game.TakePrinted(), "");
    EXPECT_EQ(game.Machine().Painted().PixelAt(40, 120), Surface::kUnpainted);
    Form_MouseDown(main, kRight, 60, 100);
    EXPECT_EQ(InShort(main),
              "90,70 13,147 left stopped 5\n300,120 60,360 left stopped 5\n13,147 139,273 right stopped 5\n");
    EXPECT_EQ(beam.LinkedLines, std::vector<CLine*>{main.Lines[2]});
    EXPECT_EQ(main.Lines[1]->StoppingLines, std::vector<CLine*>{main.Lines[2]});
    EXPECT_EQ(game.TakePrinted(), "sound 1 async\n") << "another colour stops it, allowed all the same";
    EXPECT_EQ(main.Score, 0);
    EXPECT_EQ(main.LookAheadBeams.Count(), 0U);
    EXPECT_NE(game.Machine().Painted().PixelAt(40, 120), Surface::kUnpainted) << "the real run paints";
}

TEST(SpeedUpLine, StrikesScoresAndMarksTheStruckBeam) {
    TestGame game;
    VMain& main = game.Play(kArcadeGame);
    main.MultiSumX = main.MultiSumY = 77;
    CLine& beam = game.AddBeam(100, 100, 150, 150, kBlue);
    game.AddBeam(310, 190, 200, 300, kGreen, kStopped).Deleted = true;  // it runs through a dying one
    main.Lines.back()->Thicknes = 4;
    CLine& struck = game.AddBeam(350, 250, 250, 350, kBlue, kStopped);
    EXPECT_TRUE(SpeedUpLine(main, beam, false));
    EXPECT_EQ(InShort(beam), "100,100 296,296 right stopped 4 dying");
    EXPECT_EQ(InShort(struck), "350,250 250,350 left stopped 4 dying fast");
    EXPECT_EQ(main.DyingLines, (std::vector<CLine*>{&beam, &struck}));
    EXPECT_EQ(struck.StoppingLines, std::vector<CLine*>{&beam});
    EXPECT_EQ(main.Score, 10);
    EXPECT_EQ(main.MultiSumX, 77);
    EXPECT_FALSE(main.LabelMulti.visible);
    EXPECT_EQ(game.TakePrinted(), "sound 2 async\n");
    CLine& grower = game.AddBeam(222, 268, 272, 318, kBlue);
    for (int i = 0; i < 5; ++i) ExtendLines(main);
    EXPECT_EQ(grower.RunMode, kGrowing) << "no growing beam strikes it any more";
}

TEST(SpeedUpLine, ABeamThatMeetsItsOwnChainThinsItTwice) {
    TestGame game;
    VMain& main = game.Play(kPuzzleGame);
    CLine& beam = game.AddBeam(200, 200, 240, 240, kBlue);
    CLine& sameChain = game.AddBeam(340, 200, 200, 340, kBlue, kStopped);
    beam.LinkedLines.push_back(&sameChain);
    sameChain.LinkedLines.push_back(&beam);
    SpeedUpLine(main, beam, false);
    EXPECT_EQ(beam.Thicknes, 3);
    EXPECT_EQ(sameChain.Thicknes, 3);
    EXPECT_EQ(main.DyingLines.size(), 2U);
}

TEST(SpeedUpLine, ErasesInTheEntryZoneAlsoWhenItOnlyLooksAhead) {
    for (const auto& [mode, head, simulate] : {std::tuple{kArcadeGame, 40, true}, std::tuple{kPuzzleGame, 21, false}}) {
        TestGame game;
        VMain& main = game.Play(mode);
        CLine& beam = game.AddBeam(100, head - 20, 120, head, kBlue);
        DrawLine(main, 100, head - 20, 120, head, kBlue, kRightwards);
        const std::string before = InShort(beam);
        EXPECT_FALSE(SpeedUpLine(main, beam, simulate));
        EXPECT_EQ(game.Machine().Painted().PixelAt(110, head - 10), 0xFF000000U);
        EXPECT_EQ(InShort(beam) == before, simulate);
    }
}

}  // namespace
}  // namespace prismfall
