// All solution scripts, played by the program, for both values that GrowthToggle can start with.
#include <gtest/gtest.h>

#include "game/PuzzleStart.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

constexpr std::int64_t kLongestReplay = 120000;  // milliseconds

TEST(Solution, ClearsEveryPuzzle) {
    for (const std::int16_t toggle : {std::int16_t{0}, std::int16_t{1}}) {
        TestGame game;
        VMain& main = game.QuietStore().Load();
        for (std::int16_t puzzle = 1; puzzle <= kPuzzleCount; ++puzzle) {
            main.CurrentPuzzle = puzzle;
            main.GrowthToggle = toggle;
            StartPuzzleGame(main, false, true);
            game.TakePrinted();
            for (std::int64_t time = 0; time < kLongestReplay && main.GameRunning; time += 1000)
                game.Machine().Run(1000);
            EXPECT_NE(game.TakePrinted().find("dialog VPuzzleResult solved"), std::string::npos)
                << "puzzle " << puzzle << ", toggle " << toggle;
            EXPECT_TRUE(main.Lines.empty());
            EXPECT_FALSE(main.SolvedPuzzles[static_cast<std::size_t>(puzzle) - 1]) << "a replay marks nothing";
        }
    }
}

}  // namespace
}  // namespace prismfall
