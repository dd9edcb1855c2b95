// All solutions, for both starting values of GrowthToggle, on the driver's clock and on a terrible one, which advances
// with every reading and stalls. Every stroke and sound must be the same.
#include <gtest/gtest.h>

#include "game/MainWindow.h"
#include "game/PuzzleStart.h"
#include "tests/support/StallingMachine.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

template <typename Machine>
void LoadReplay(Machine& machine, VMain& main, std::int16_t puzzle, std::int16_t toggle) {
    machine.PutSetting("General", "Music", "False");
    MakeMainWindow(main);
    machine.SetPainting(true);
    main.CurrentPuzzle = puzzle;
    main.field.GrowthToggle = toggle;
}

std::string ReplayOnTheDriver(std::int16_t puzzle, std::int16_t toggle) {
    std::ostringstream printed;
    HeadlessPlatform machine(printed);
    VMain main(machine);
    LoadReplay(machine, main, puzzle, toggle);
    StartPuzzleGame(main, false, true);
    for (int second = 0; second < 120 && main.GameRunning; ++second) machine.Run(1000);
    return printed.str();
}

std::string ReplayUnderStalls(std::int16_t puzzle, std::int16_t toggle) {
    std::ostringstream printed;
    StallingMachine machine(printed, static_cast<std::uint32_t>(2 * puzzle + toggle));
    VMain main(machine);
    LoadReplay(machine, main, puzzle, toggle);
    machine.Handle([&] { StartPuzzleGame(main, false, true); });
    for (int round = 0; round < 200'000 && main.GameRunning; ++round) machine.ComeRound();
    return printed.str();
}

TEST(Stalls, ChangeNothingInTheSolutionsOfAllPuzzles) {
    for (std::int16_t puzzle = 1; puzzle <= kPuzzleCount; ++puzzle) {
        for (const std::int16_t toggle : {std::int16_t{0}, std::int16_t{1}}) {
            const std::string expected = ReplayOnTheDriver(puzzle, toggle);
            EXPECT_TRUE(expected.ends_with("dialog VPuzzleResult solved\n")) << puzzle << ' ' << toggle;
            EXPECT_TRUE(ReplayUnderStalls(puzzle, toggle) == expected) << puzzle << ' ' << toggle;
        }
    }
}

}  // namespace
}  // namespace prismfall
