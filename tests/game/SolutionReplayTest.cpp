// The steps of a solution script: which fire, and what each kind does.
#include "game/SolutionReplay.h"

#include <gtest/gtest.h>

#include "game/GrowthTick.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

struct ReplayCase {
    const char* name;
    std::int16_t speedUp, otherLineNr, bendFirst;
    const char* trigger;  // in short, after the step
    const char* others;   // the two beams of number 2, then those that are new
};

constexpr char kTriggerAsItWas[] = "100,100 150,150 right growing 5";
constexpr char kOthersAsTheyWere[] = "500,100 520,120 right waiting 5\n400,100 350,150 left stopped 5\n";

TEST(PlaySolutionStep, ActsByTheTable) {
    constexpr ReplayCase kCases[] = {
        {"bend", 0, 0, 0, "100,100 150,150 right stopped 5",
         "500,100 520,120 right waiting 5\n400,100 350,150 left stopped 5\n150,150 150,150 left growing 5\n"},
        {"bend, BendFirst is not read", 0, 0, -1, "100,100 150,150 right stopped 5",
         "500,100 520,120 right waiting 5\n400,100 350,150 left stopped 5\n150,150 150,150 left growing 5\n"},
        {"speed", -1, 0, 0, "100,100 585,585 right growing 5", kOthersAsTheyWere},
        {"bend and speed", -1, 0, -1, "100,100 150,150 right stopped 5",
         "500,100 520,120 right waiting 5\n400,100 350,150 left stopped 5\n150,150 13,287 left stopped 5\n"
         "13,287 311,585 right growing 5\n"},
        {"start others", 0, 2, 0, kTriggerAsItWas, "500,100 520,120 right growing 5\n400,100 350,150 left growing 5\n"},
        {"start and speed others", -1, 2, 0, kTriggerAsItWas,
         "500,100 670,270 right stopped 5\n400,100 13,487 left stopped 5\n"
         "670,270 355,585 left growing 5\n13,487 111,585 right growing 5\n"},
        {"bend others", 0, 2, -1, kTriggerAsItWas,
         "500,100 520,120 right stopped 5\n400,100 350,150 left stopped 5\n"
         "520,120 520,120 left growing 5\n350,150 350,150 right growing 5\n"},
        {"bend and speed others", -1, 2, -1, kTriggerAsItWas,
         "500,100 520,120 right stopped 5\n400,100 350,150 left stopped 5\n"
         "520,120 55,585 left growing 5\n350,150 416,216 right stopped 5\n"},
        {"others that no beam is", -1, 9, -1, kTriggerAsItWas, kOthersAsTheyWere},
    };
    for (const ReplayCase& c : kCases) {
        SCOPED_TRACE(c.name);
        TestGame game;
        VMain& main = game.Play(kSolutionReplay);
        // The second step names the same moment and must not fire.
        const std::int16_t script[] = {2, 1, 150, c.speedUp, c.otherLineNr, c.bendFirst, 1, 150, 0, 0, 0};
        main.PuzzleSolutions[0] = script;
        CLine& trigger = game.AddBeam(100, 100, 150, 150, 0);
        trigger.PuzzleLineNr = 1;
        game.AddBeam(500, 100, 520, 120, 1, kWaiting).PuzzleLineNr = 2;
        game.AddBeam(400, 100, 350, 150, 2, kStopped).PuzzleLineNr = 2;
        PlaySolutionStep(main);
        EXPECT_EQ(InShort(trigger), c.trigger);
        EXPECT_EQ(InShort(main), InShort(trigger) + '\n' + c.others);
    }
}

TEST(PlaySolutionStep, FiresOnAGrowingBeamAtTheExactHeight) {
    struct Case {
        std::int16_t lineNr, yEnd;
        std::int32_t runMode;
        bool fires;
    };
    constexpr Case kCases[] = {{1, 150, kGrowing, true},  {1, 150, kStopped, false}, {1, 150, kWaiting, false},
                               {2, 150, kGrowing, false}, {1, 149, kGrowing, false}, {1, 151, kGrowing, false}};
    for (const Case& c : kCases) {
        TestGame game;
        VMain& main = game.Play(kSolutionReplay);
        constexpr std::int16_t kScript[] = {1, 1, 150, 0, 0, 0};
        main.PuzzleSolutions[0] = kScript;
        game.AddBeam(50 + 150 - c.yEnd, 100, 100, 150 - (150 - c.yEnd), 0, c.runMode).PuzzleLineNr = c.lineNr;
        PlaySolutionStep(main);
        EXPECT_EQ(main.Lines.size(), c.fires ? 2U : 1U) << c.lineNr << ' ' << c.yEnd << ' ' << c.runMode;
        if (!c.fires) continue;
        EXPECT_EQ(main.Lines[1]->PuzzleLineNr, 1) << "the script can go on naming the segment";
        main.GameMode = kPuzzleGame;
        main.Lines[1]->YEnd = 150;
        ExtendLines(main);
        EXPECT_EQ(main.Lines.size(), 2U) << "no step once the player has taken over";
    }
}

TEST(PlaySolutionStep, StandsBeamsThatGoWhileItYields) {
    TestGame game;
    VMain& main = game.Play(kSolutionReplay);
    constexpr std::int16_t kScript[] = {2, 1, 150, -1, 0, 0, 2, 300, 0, 0, 0};
    main.PuzzleSolutions[0] = kScript;
    game.AddBeam(100, 100, 150, 150, 0).PuzzleLineNr = 1;
    CLine& struck = game.AddBeam(400, 100, 200, 300, 0, kStopped);
    struck.PuzzleLineNr = 2;
    main.Lines[0]->StoppingLines.push_back(&struck);    // so that it would fire its step, if it had not gone
    for (CLine* beam : main.Lines) beam->Thicknes = 1;  // gone with the next step
    game.Machine().SetTimerInterval(Timer::LineDeleter, 1);
    game.Machine().StartTimer(Timer::LineDeleter);
    ExtendLines(main);
    EXPECT_EQ(game.TakePrinted(), "sound 4 async\ndialog VPuzzleResult solved\nsound 4 sync\n");
    EXPECT_TRUE(main.Lines.empty());
}

}  // namespace
}  // namespace prismfall
