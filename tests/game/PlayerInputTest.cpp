// What a press on the playfield does, by mode, zone, button and what the beam is doing.
#include "game/PlayerInput.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

// Mode and button; the beam that is pressed near its head; a second beam, across its path; the first one afterwards; a
// beam that is added; the sounds.
constexpr char kPresses[] = R"(
    arcade left  | 100,29 130,59 blue           |                             | 130,59 130,59 blue left      |                            |
    arcade left  | 100,30 130,60 blue           |                             | 100,30 130,60 blue stopped   | 130,60 130,60 blue left    |
    puzzle left  | 100,100 130,130 blue waiting |                             | 100,100 130,130 blue         |                            |
    puzzle left  | 100,100 130,130 blue         |                             | 100,100 130,130 blue stopped | 130,130 130,130 blue left  |
    arcade left  | 100,100 130,130 blue waiting |                             | 100,100 130,130 blue stopped | 130,130 130,130 blue left  |
    arcade right | 100,20 130,50 blue           |                             | 100,20 130,50 blue           |                            | sound 3 async
    puzzle right | 100,-11 130,19 blue          |                             | 100,-11 130,19 blue          |                            | sound 3 async
    arcade right | 100,100 130,130 blue         |                             | 100,100 130,130 blue         |                            | sound 3 async
    arcade right | 100,20 130,50 blue           | 600,400 440,560 blue        | 142,62 536,456 blue stopped 4 dying   |                   | sound 2 async
    arcade right | 100,100 130,130 blue         | 600,430 440,590 red stopped | 100,100 511,511 blue stopped          |                   | sound 1 async
    puzzle right | 100,100 130,130 blue         | 600,430 440,590 blue        | 100,100 511,511 blue stopped 4 dying  |                   | sound 4 async yield sound 4 sync
    puzzle right | 100,100 130,130 blue waiting | 600,430 440,590 red stopped | 100,100 511,511 blue stopped          |                   | sound 1 async
    puzzle right | 100,100 130,130 blue waiting |                             | 100,100 585,585 blue                  |                   |
)";

TEST(Form_MouseDown, DoesWhatTheTableSays) {
    for (const auto& row : Rows(kPresses)) {
        TestGame game(ModeNamed(row[0].substr(0, 6)), row[1]);
        AddBeams(game.Main().field, row[2]);
        game.Machine().onYield = [&] { game.Print("yield\n"); };
        VMain& main = game.Main();
        const std::size_t count = main.field.Lines.size();
        const MouseButton button = row[0].ends_with("left") ? MouseButton::Left : MouseButton::Right;
        Form_MouseDown(main, button, 131.4F, static_cast<float>(game.Beam(1).YEnd) - 0.4F);
        EXPECT_EQ(InShort(game.Beam(1)), row[3]);
        EXPECT_EQ(main.field.Lines.size() > count ? InShort(*main.field.Lines.back()) : "", row[4]) << row[1];
        std::string printed = game.TakePrinted();
        std::ranges::replace(printed, '\n', ' ');
        EXPECT_EQ(printed, row[5] + (row[5].empty() ? "" : " ")) << row[1];
    }
}

TEST(Form_MouseDown, RoundsHalvesToTheEvenPixelAndADoubleClickRepeatsIt) {
    TestGame game(Mode::PuzzleGame, "100,100 150,150 blue waiting");
    for (const float y : {199.75F, 99.5F, 100.5F}) Form_MouseDown(game.Main(), MouseButton::Left, 150, y);
    EXPECT_EQ(InShort(game.Main().field), "100,100 150,150 blue waiting") << "each is 50 away";
    game.Main().GameRunning = false;
    Form_MouseDown(game.Main(), MouseButton::Right, 150, 101.5F);
    Form_DblClick(game.Main());
    EXPECT_EQ(InShort(game.Main().field), "100,100 150,150 blue waiting") << "the game is paused";
    game.Main().GameRunning = true;
    Form_DblClick(game.Main());
    EXPECT_EQ(InShort(game.Main().field), "100,100 150,150 blue") << "a left press at the place of the last one";
}

}  // namespace
}  // namespace prismfall
