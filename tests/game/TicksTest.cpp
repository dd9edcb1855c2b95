// The two ticks of a game: which beams grow and what cuts that short, what a removal does, and what each counts.
#include <gtest/gtest.h>

#include "game/GrowthTick.h"
#include "game/RemovalTick.h"
#include "simulation/BeamRemoval.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

TEST(GrowthTick, AWallCutsItShortAndWhatHadCollidedScoresNothing) {
    TestGame game(Mode::ArcadeGame,
                  "150,100 196,146 blue; 250,100 200,150 blue stopped; 64,300 14,350 green; 400,100 420,120 green");
    game.Main().field.GrowthToggle = 0;
    ExtendLines(game.Main());
    EXPECT_EQ(
        InShort(game.Main().field),
        "150,100 196,146 blue stopped 4 dying; 250,100 200,150 blue stopped 4 dying; 64,300 13,351 green stopped; "
        "400,100 420,120 green; 13,351 13,351 green");
    EXPECT_EQ(Places(game.Main().field, game.Beam(3).LinkedLines), "5");
    EXPECT_EQ(game.Main().Score, 0);
    EXPECT_EQ(game.Main().field.GrowthToggle, 1);
    ExtendLines(game.Main());
    EXPECT_EQ(InShort(game.Beam(4)) + "; " + InShort(game.Beam(5)), "400,100 421,121 green; 13,351 14,352 green");
    EXPECT_EQ(game.Main().field.GrowthToggle, 0);
}

TEST(GrowthTick, ScoresAllItsHitsAtItsEnd) {
    TestGame game(Mode::ArcadeGame,
                  "150,100 104,146 green; 50,100 100,150 green stopped; 350,100 304,146 green; 250,100 300,150 green "
                  "stopped; 500,100 510,110 red stopped");
    VMain& main = game.Main();
    ExtendLines(main);
    EXPECT_EQ(main.Score, 20);
    EXPECT_EQ(main.LevelLineCount, 2);
    EXPECT_EQ(main.LabelMulti.left, (104 + 304) / 2);
    EXPECT_EQ(main.LabelMulti.top, 146 - 10);
}

TEST(LineDeleter, ThinsTheWholeChainAndTakesItOut) {
    TestGame game(Mode::ArcadeGame, "100,100 150,150 blue; 150,150 100,200 blue; 300,100 350,150 green stopped");
    VMain& main = game.Main();
    game.Beam(1).LinkedLines = {&game.Beam(2)};
    game.Beam(2).StoppingLines = {&game.Beam(3)};
    StartRemoval(main.field, game.Beam(1), false);
    game.Machine().SetPainting(true);
    for (int i = 0; i < 3; ++i) {
        LineDeleter_Timer(main);
        EXPECT_EQ(game.TakePrinted().find("0x008000"), std::string::npos) << "nothing else is repainted";
    }
    LineDeleter_Timer(main);
    EXPECT_EQ(InShort(main.field), "300,100 350,150 green") << "what it had stopped grows on at once";
    EXPECT_EQ(game.TakePrinted(),
              "line 100 100 150 150 0x000000 5\nline 150 150 100 200 0x000000 5\nline 14 60 670 60 0xFF0000 1\n"
              "line 300 100 350 150 0x008000 5\nline 300 98 352 150 0x00FF00 1\nline 298 100 350 152 0x000400 1\n");
}

TEST(LineDeleter, ABeamThatIsDyingTwiceLosesTwoSteps) {
    TestGame game(Mode::PuzzleGame, "400,400 410,410 blue stopped; 100,100 150,150 blue; 300,100 350,150 blue");
    VMain& main = game.Main();
    const CLine& twice = game.Beam(2);
    for (const std::size_t beam : {2U, 3U}) StartRemoval(main.field, game.Beam(beam), false);
    main.field.DyingLines.push_back(&game.Beam(2));
    for (int i = 0; i < 100; ++i) main.field.Beams.Make();  // enough to make freeing unreachable ones worthwhile
    LineDeleter_Timer(main);
    EXPECT_EQ(Places(main.field, main.field.DyingLines), "2 3 2");
    EXPECT_EQ(twice.Thicknes + game.Beam(3).Thicknes, 2 + 3);
    LineDeleter_Timer(main);
    EXPECT_EQ(Places(main.field, main.field.DyingLines), "0 2") << "gone, but kept while it is in DyingLines";
    EXPECT_EQ(main.field.Beams.Count(), 3U);
    LineDeleter_Timer(main);
    EXPECT_EQ(Places(main.field, main.field.DyingLines), "2");
    LineDeleter_Timer(main);
    EXPECT_EQ(Places(main.field, main.field.DyingLines), "");
    EXPECT_EQ(InShort(main.field), "400,400 410,410 blue stopped");
}

}  // namespace
}  // namespace prismfall
