// How the beams of a puzzle are joined when it is laid out, and what its tutorial does for the player.
#include <gtest/gtest.h>

#include "game/PuzzleStart.h"
#include "game/Tutorial.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

// Beams, and "HEAD:LINKS/STOPS" of each, with places in Lines: a chain, also straight on or the other way round; not
// one of two colours; heads on heads, of two colours and ways; heads on beams; none; two against one, and a head that
// has moved.
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

TEST(LinkPuzzleLines, AppliesTheFirstRuleThatHolds) {
    for (const auto& row : Rows(kLayouts)) {
        TestGame game(kPuzzleGame, row[0]);
        VMain& main = game.Main();
        LinkPuzzleLines(main);
        std::string linked;
        for (const CLine* beam : main.Lines)
            linked += std::to_string(beam->XEnd) + ',' + std::to_string(beam->YEnd) + ':' +
                      Places(main, beam->LinkedLines) + '/' + Places(main, beam->StoppingLines) + ' ';
        EXPECT_EQ(linked, row[1] + ' ') << row[0];
    }
}

TEST(Tutorial, ThreeStepsActOnTheFirstBeamThatTheyMean) {
    constexpr char kBeams[] =
        "300,100 350,150 red stopped #2; 100,100 150,150 red #2; 500,100 550,150 blue waiting #6; "
        "400,200 450,250 blue waiting #6";
    for (std::int16_t step = 1; step <= 8; ++step) {
        TestGame game(kPuzzleGame, kBeams);
        game.Main().TutorialStep = step;
        ContinueTutorial(game.Main(), 1);
        std::string expected = kBeams;
        if (step == 2) expected += "; 350,150 350,150 red left #2";
        if (step == 4) expected.replace(expected.find(" waiting"), 8, "");
        if (step == 7) expected.replace(expected.find("150,150 red #2"), 7, "585,585");
        EXPECT_EQ(InShort(game.Main()), expected) << step;
    }
}

TEST(Tutorial, APictureAlsoEndsThePauseOfAMinimisedWindow) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    StartPuzzleGame(main, false, false);
    game.Click("CmdStart");
    game.Machine().Run(4000);
    ASSERT_EQ(main.TutorialStep, 1);
    for (const bool isMinimised : {true, false}) main.window.on.resize(isMinimised);
    EXPECT_FALSE(main.GameRunning);
    game.Machine().Input().PressOn(main.window, main.PictTut[0], MouseButton::Left, 150, 90);
    EXPECT_TRUE(main.GameRunning && game.Machine().Timers().IsOn(Timer::LineDeleter));
    EXPECT_EQ(std::string(main.cmdPause.picture) + std::string(main.cmdPause.tag), "PauseUp");
}

}  // namespace
}  // namespace prismfall
