// What a press on the playfield does, by mode, zone, button and what the beam is doing.
#include "game/PlayerInput.h"

#include <gtest/gtest.h>

#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

TEST(Form_MouseDown, DoesWhatTheTableSays) {
    struct Case {
        std::int32_t mode;
        MouseButton button;
        const char* beam;    // is pressed near its head
        const char* target;  // a second beam, across its way
        const char* after;   // of the first beam
        const char* added = "";
        const char* printed = "";
    };
    constexpr MouseButton kLeft = MouseButton::Left, kRight = MouseButton::Right;
    constexpr Case kCases[] = {
        // Bent in the entry zone, split below it; a puzzle's waiting beam is started.
        {kArcadeGame, kLeft, "100,29 130,59 blue", "", "130,59 130,59 blue left"},
        {kArcadeGame, kLeft, "100,30 130,60 blue", "", "100,30 130,60 blue stopped", "130,60 130,60 blue left"},
        {kPuzzleGame, kLeft, "100,100 130,130 blue waiting", "", "100,100 130,130 blue"},
        {kPuzzleGame, kLeft, "100,100 130,130 blue", "", "100,100 130,130 blue stopped", "130,130 130,130 blue left"},
        {kArcadeGame, kLeft, "100,100 130,130 blue waiting", "", "100,100 130,130 blue stopped",
         "130,130 130,130 blue left"},
        // Refused where the run would end on the ground, in Arcade games and above a puzzle's line.
        {kArcadeGame, kRight, "100,20 130,50 blue", "", "100,20 130,50 blue", "", "sound 3 async\n"},
        {kPuzzleGame, kRight, "100,-11 130,19 blue", "", "100,-11 130,19 blue", "", "sound 3 async\n"},
        {kArcadeGame, kRight, "100,100 130,130 blue", "", "100,100 130,130 blue", "", "sound 3 async\n"},
        // Speeded up; the last two of a puzzle sound twice.
        {kArcadeGame, kRight, "100,20 130,50 blue", "600,400 440,560 blue stopped",
         "142,62 536,456 blue stopped 4 dying", "", "sound 2 async\n"},
        {kArcadeGame, kRight, "100,100 130,130 blue", "600,430 440,590 red stopped", "100,100 511,511 blue stopped", "",
         "sound 1 async\n"},
        {kPuzzleGame, kRight, "100,100 130,130 blue", "600,430 440,590 blue stopped",
         "100,100 511,511 blue stopped 4 dying", "", "sound 4 async\nyield\nsound 4 sync\n"},
        {kPuzzleGame, kRight, "100,100 130,130 blue waiting", "600,430 440,590 red stopped",
         "100,100 511,511 blue stopped", "", "sound 1 async\n"},
        {kPuzzleGame, kRight, "100,100 130,130 blue waiting", "", "100,100 585,585 blue"},
    };
    for (const Case& c : kCases) {
        TestGame game(c.mode, c.beam);
        game.Add(c.target);
        game.Machine().onYield = [&] { game.Print("yield\n"); };
        VMain& main = game.Main();
        const std::size_t count = main.Lines.size();
        Form_MouseDown(main, c.button, 131.4F, static_cast<float>(game.Beam(1).YEnd) - 0.4F);
        EXPECT_EQ(InShort(game.Beam(1)), c.after);
        EXPECT_EQ(main.Lines.size() > count ? InShort(*main.Lines.back()) : "", c.added) << c.beam;
        EXPECT_EQ(game.TakePrinted(), c.printed) << c.beam;
        EXPECT_EQ(main.LookAheadBeams.Count(), 0U);
    }
}

TEST(Form_MouseDown, RoundsHalvesToTheEvenPixelAndADoubleClickRepeatsIt) {
    TestGame game(kPuzzleGame, "100,100 150,150 blue waiting");
    for (const float y : {199.75F, 99.5F, 100.5F}) Form_MouseDown(game.Main(), MouseButton::Left, 150, y);
    EXPECT_EQ(InShort(game.Main()), "100,100 150,150 blue waiting") << "50 away, each of them";
    game.Main().GameRunning = false;
    Form_MouseDown(game.Main(), MouseButton::Right, 150, 101.5F);
    Form_DblClick(game.Main());
    EXPECT_EQ(InShort(game.Main()), "100,100 150,150 blue waiting") << "the game stands still";
    game.Main().GameRunning = true;
    Form_DblClick(game.Main());
    EXPECT_EQ(InShort(game.Main()), "100,100 150,150 blue") << "a left press where the last one was";
}

}  // namespace
}  // namespace prismfall
