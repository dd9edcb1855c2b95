// A game on the starting point for a port: it provides everything in the interface that the game relies on.
#include "backends/null/NullPlatform.h"

#include <gtest/gtest.h>

#include "game/MainWindow.h"

namespace prismfall {
namespace {

TEST(NullPlatform, PlaysAnArcadeGameToItsEnd) {
    NullPlatform machine;
    VMain main(machine);
    MakeMainWindow(main);
    machine.Open(main.window);
    EXPECT_EQ(main.GameMode, Mode::PuzzleGame) << "the first run begins with the tutorial, behind About";
    machine.Do([&](WindowInput& input) {
        input.Key(main.window, kEscapeKey);
        input.Key(main.window, kEscapeKey);
        input.PressAndClick(main.window, main.CommandArcade);
    });
    machine.Run(5000);
    EXPECT_EQ(main.field.Lines.size(), 5U) << "three to begin with, and two from the timer";
    machine.Run(120'000);
    EXPECT_EQ(main.GameMode, Mode::MainMenu) << "nobody kept the beams off the ground";
    machine.Do([&](WindowInput& input) { input.Key(main.window, kEscapeKey); });
    EXPECT_TRUE(machine.HasEnded());
}

}  // namespace
}  // namespace prismfall
