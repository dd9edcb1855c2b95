// How the beams of a puzzle are linked when it is laid out, how the tutorial pauses, and a solution whose beams
// disappear while it yields. What each solution step does is tested by the solutions themselves (StallsTest).
#include <gtest/gtest.h>

#include "game/PuzzleStart.h"
#include "game/SolutionReplay.h"
#include "game/Tutorial.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

// Beams, and "HEAD:LINKS/STOPS" of each, as positions in Lines: a chain, also straight or reversed; no chain of two
// colours; heads on heads, of two colours and directions; heads on beams; none; two against one, and a head that has
// moved.
constexpr char kLayouts[] = R"(
    100,100 150,150 red; 150,150 120,180 red  | 150,150:2/ 120,180:1/
    100,100 150,150 red; 150,150 180,180 red  | 150,150:2/ 180,180:1/
    150,150 120,180 red; 100,100 150,150 red  | 120,180:2/ 150,150:1/
    100,100 150,150 red; 150,150 120,180 blue | 146,146:/ 120,180:/1
    100,100 150,150 red; 200,100 150,150 blue | 147,147:/2 153,147:/1
    100,100 150,150 red; 200,100 150,150 red  | 146,146:/ 150,150:/1
    100,100 150,150 red; 120,120 150,150 blue | 146,146:/ 150,150:/1
    100,100 150,150 red; 200,100 120,180 red  | 146,146:/ 120,180:/1
    100,100 150,150 red; 201,100 121,180 red  | 150,150:/ 121,180:/
    100,100 150,150 red; 200,100 151,149 blue | 150,150:/ 151,149:/
    100,100 150,150 red; 200,100 120,180 blue; 80,80 150,150 green | 142,142:/ 120,180:/1 3 146,146:/1
)";

TEST(LinkPuzzleLines, AppliesTheFirstRuleThatMatches) {
    for (const auto& row : Rows(kLayouts)) {
        TestGame game(Mode::PuzzleGame, row[0]);
        VMain& main = game.Main();
        LinkPuzzleLines(main.field);
        std::string linked;
        for (const CLine* beam : main.field.Lines)
            linked += std::to_string(beam->XEnd) + ',' + std::to_string(beam->YEnd) + ':' +
                      Places(main.field, beam->LinkedLines) + '/' + Places(main.field, beam->StoppingLines) + ' ';
        EXPECT_EQ(linked, row[1] + ' ') << row[0];
    }
}

TEST(Tutorial, ItsSpeedAndItsPauses) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    game.Machine().SetTimerInterval(Timer::LineExtender, 6);  // as left by a game at a high level
    StartPuzzleGame(main, false, false);
    EXPECT_EQ(game.Machine().Timers().Interval(Timer::LineExtender), 75);
    game.Click("CmdStart");
    game.Click("cmdPause");
    EXPECT_FALSE(main.GameRunning) << "between two pictures it is a normal pause";
    game.Click("cmdPause");
    game.Machine().Run(4000);
    ASSERT_EQ(main.TutorialStep, 1);
    for (const bool isMinimised : {true, false}) main.window.on.resize(isMinimised);
    EXPECT_FALSE(main.GameRunning);
    game.Machine().Input().PressOn(main.window, main.PictTut[0], MouseButton::Left, 150, 90);
    EXPECT_TRUE(main.GameRunning && game.Machine().Timers().IsOn(Timer::LineDeleter));
    EXPECT_EQ(std::string(main.cmdPause.picture) + std::string(main.cmdPause.tag), "PauseUp");
}

TEST(PlaySolutionStep, SurvivesBeamsThatDisappearWhileItYields) {
    TestGame game(Mode::SolutionReplay, "100,100 150,150 blue 1 #1; 400,100 200,300 blue stopped 1 #2");
    constexpr SolutionStep kScript[] = {{.TriggerLineNr = 1, .TriggerYEnd = 150, .SpeedUp = true},
                                        {.TriggerLineNr = 2, .TriggerYEnd = 300}};
    game.Beam(1).StoppingLines = {&game.Beam(2)};  // so that it would trigger its step if it still existed
    game.Machine().SetTimerInterval(Timer::LineDeleter, 1);
    game.Machine().StartTimer(Timer::LineDeleter);
    PlaySolutionStep(game.Main(), kScript);
    EXPECT_EQ(game.TakePrinted(), "sound 4 async\ndialog VPuzzleResult solved\nsound 4 sync\n");
    EXPECT_TRUE(game.Main().field.Lines.empty());
}

}  // namespace
}  // namespace prismfall
