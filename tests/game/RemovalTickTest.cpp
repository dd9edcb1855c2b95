// What a removal tick does to the dying, to those that they had stopped, and to the game.
#include "game/RemovalTick.h"

#include <gtest/gtest.h>

#include "simulation/BeamRemoval.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

TEST(LineDeleter, ThinsTheWholeChainAndTakesItOut) {
    TestGame game(kArcadeGame, "100,100 150,150 blue; 150,150 100,200 blue; 300,100 350,150 green stopped");
    VMain& main = game.Main();
    game.Beam(1).LinkedLines = {&game.Beam(2)};
    game.Beam(2).StoppingLines = {&game.Beam(3)};
    StartRemoval(main, game.Beam(1), false);
    game.Machine().SetPainting(true);
    for (const float thicknes : {3.0F, 2.0F, 1.0F}) {
        LineDeleter_Timer(main);
        EXPECT_EQ(game.Beam(2).Thicknes, thicknes);
        EXPECT_EQ(game.TakePrinted().find("0x008000"), std::string::npos) << "nothing else is painted again";
    }
    LineDeleter_Timer(main);
    EXPECT_EQ(InShort(main), "300,100 350,150 green") << "what it had stopped grows on at once";
    EXPECT_EQ(game.TakePrinted(),
              "line 100 100 150 150 0x000000 5\nline 150 150 100 200 0x000000 5\nline 14 60 670 60 0xFF0000 1\n"
              "line 300 100 350 150 0x008000 5\nline 300 98 352 150 0x00FF00 1\nline 298 100 350 152 0x000400 1\n");
}

TEST(LineDeleter, ABeamThatStandsTwiceLosesTwoSteps) {
    TestGame game(kPuzzleGame, "400,400 410,410 blue stopped; 100,100 150,150 blue; 300,100 350,150 blue");
    VMain& main = game.Main();
    const CLine& twice = game.Beam(2);
    for (const std::size_t beam : {2U, 3U}) StartRemoval(main, game.Beam(beam), false);
    main.DyingLines.push_back(&game.Beam(2));
    for (int i = 0; i < 100; ++i) main.Beams.Make();  // enough that it pays to free those out of reach
    LineDeleter_Timer(main);
    EXPECT_EQ(Places(main, main.DyingLines), "2 3 2");
    EXPECT_EQ(twice.Thicknes + game.Beam(3).Thicknes, 2 + 3);
    LineDeleter_Timer(main);
    EXPECT_EQ(Places(main, main.DyingLines), "0 2") << "gone, but kept while it stands among the dying";
    EXPECT_EQ(main.Beams.Count(), 3U);
    LineDeleter_Timer(main);
    EXPECT_EQ(Places(main, main.DyingLines), "2");
    LineDeleter_Timer(main);
    EXPECT_EQ(Places(main, main.DyingLines), "");
    EXPECT_EQ(InShort(main), "400,400 410,410 blue stopped");
}

TEST(LineDeleter, RestartsBeamsWhateverTheirState) {
    TestGame game(kArcadeGame,
                  "100,100 150,150 blue 0; 300,100 350,150 red stopped 4 dying; 500,100 550,150 red waiting");
    game.Add("600,100 650,150 green");
    game.Beam(1).StoppingLines = {&game.Beam(2), &game.Beam(3), &game.Beam(4)};
    game.Main().Lines.pop_back();  // one that has left already
    LineDeleter_Timer(game.Main());
    EXPECT_EQ(InShort(game.Main()), "300,100 350,150 red 4 dying; 500,100 550,150 red");
}

TEST(LineDeleter, OnlyARemovalSolvesAPuzzle) {
    TestGame game(kPuzzleGame);
    LineDeleter_Timer(game.Main());
    EXPECT_TRUE(game.Main().GameRunning) << "empty, and nothing has gone";
    game.Add("100,100 150,150 blue 0");
    LineDeleter_Timer(game.Main());
    EXPECT_FALSE(game.Main().GameRunning);
}

}  // namespace
}  // namespace prismfall
