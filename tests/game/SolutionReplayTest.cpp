// The steps of a solution script: which fire, and what each kind does.
#include "game/SolutionReplay.h"

#include <gtest/gtest.h>

#include "game/GrowthTick.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

// The step: s speeds up, b bends first, 2 acts on the beams of that number. What becomes of the beam that triggers it;
// of the two beams of number 2; what is added.
constexpr char kSteps[] = R"(
       | 100,100 150,150 blue stopped #1 | 500,100 520,120 green waiting #2; 400,100 350,150 red stopped #2 | ; 150,150 150,150 blue left #1
    b  | 100,100 150,150 blue stopped #1 | 500,100 520,120 green waiting #2; 400,100 350,150 red stopped #2 | ; 150,150 150,150 blue left #1
    s  | 100,100 585,585 blue #1         | 500,100 520,120 green waiting #2; 400,100 350,150 red stopped #2 |
    sb | 100,100 150,150 blue stopped #1 | 500,100 520,120 green waiting #2; 400,100 350,150 red stopped #2 | ; 150,150 13,287 blue stopped #1; 13,287 311,585 blue #1
    2  | 100,100 150,150 blue #1         | 500,100 520,120 green #2; 400,100 350,150 red #2                 |
    2s | 100,100 150,150 blue #1         | 500,100 670,270 green stopped #2; 400,100 13,487 red stopped #2  | ; 670,270 355,585 green #2; 13,487 111,585 red #2
    2b | 100,100 150,150 blue #1         | 500,100 520,120 green stopped #2; 400,100 350,150 red stopped #2 | ; 520,120 520,120 green left #2; 350,150 350,150 red #2
    2sb| 100,100 150,150 blue #1         | 500,100 520,120 green stopped #2; 400,100 350,150 red stopped #2 | ; 520,120 55,585 green #2; 350,150 416,216 red stopped #2
    9sb| 100,100 150,150 blue #1         | 500,100 520,120 green waiting #2; 400,100 350,150 red stopped #2 |
)";

TEST(PlaySolutionStep, ActsByTheTable) {
    for (const auto& row : Rows(kSteps)) {
        const auto flag = [&](char letter) -> std::int16_t {
            return row[0].find(letter) == std::string::npos ? 0 : -1;
        };
        const auto other = static_cast<std::int16_t>(std::atoi(row[0].c_str()));
        // The second step names the same moment and must not fire.
        const std::int16_t script[] = {2, 1, 150, flag('s'), other, flag('b'), 1, 150, 0, 0, 0};
        TestGame game(kSolutionReplay,
                      "100,100 150,150 blue #1; 500,100 520,120 green waiting #2; 400,100 350,150 red stopped #2");
        game.Main().PuzzleSolutions[1] = script;
        PlaySolutionStep(game.Main());
        EXPECT_EQ(InShort(game.Main()), row[1] + "; " + row[2] + row[3]) << row[0];
    }
}

TEST(PlaySolutionStep, FiresOnAGrowingBeamAtTheExactHeightOfAReplay) {
    for (const auto& [beam, mode, fires] : {std::tuple{"100,100 150,150 blue #1", kSolutionReplay, true},
                                            {"100,100 150,150 blue stopped #1", kSolutionReplay, false},
                                            {"100,100 150,150 blue waiting #1", kSolutionReplay, false},
                                            {"100,100 150,150 blue #2", kSolutionReplay, false},
                                            {"100,100 149,149 blue #1", kSolutionReplay, false},
                                            {"100,100 151,151 blue #1", kSolutionReplay, false},
                                            {"100,100 150,150 blue #1", kPuzzleGame, false}}) {
        TestGame game(mode, beam);
        constexpr std::int16_t kScript[] = {1, 1, 150, 0, 0, 0};
        game.Main().PuzzleSolutions[1] = kScript;
        ExtendLines(game.Main());
        EXPECT_EQ(game.Main().Lines.size(), fires ? 2U : 1U) << beam << ' ' << mode;
    }
}

TEST(PlaySolutionStep, StandsBeamsThatGoWhileItYields) {
    TestGame game(kSolutionReplay, "100,100 150,150 blue 1 #1; 400,100 200,300 blue stopped 1 #2");
    constexpr std::int16_t kScript[] = {2, 1, 150, -1, 0, 0, 2, 300, 0, 0, 0};
    game.Main().PuzzleSolutions[1] = kScript;
    game.Beam(1).StoppingLines = {&game.Beam(2)};  // so that it would fire its step, if it had not gone
    game.Machine().SetTimerInterval(Timer::LineDeleter, 1);
    game.Machine().StartTimer(Timer::LineDeleter);
    ExtendLines(game.Main());
    EXPECT_EQ(game.TakePrinted(), "sound 4 async\ndialog VPuzzleResult solved\nsound 4 sync\n");
    EXPECT_TRUE(game.Main().Lines.empty());
}

}  // namespace
}  // namespace prismfall
