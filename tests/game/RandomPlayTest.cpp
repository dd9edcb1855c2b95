// A player who clicks at random, through whole games of both modes, against what must hold at every tick. The length
// and the seed come from PRISMFALL_TEST_TICKS and PRISMFALL_TEST_SEED, if they are set.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "game/PuzzleTables.h"
#include "simulation/Playfield.h"
#include "tests/support/RandomPlayer.h"

namespace prismfall {
namespace {

bool Holds(const std::vector<CLine*>& beams, const CLine* beam) {
    return std::ranges::find(beams, beam) != beams.end();
}

// What is wrong with a beam; empty for nothing.
std::string WrongWith(const CLine& beam) {
    const int across = (beam.XEnd - beam.XStart) * (beam.Direction == kRightwards ? 1 : -1);
    if (beam.Direction != kLeftwards && beam.Direction != kRightwards) return "no direction";
    if (across != beam.YEnd - beam.YStart || across < 0) return "not a diagonal in its direction";
    if (beam.XEnd < kLeftWall - 1 || beam.XEnd > kRightWall) return "head beyond a wall";
    if (beam.XStart < kLeftWall - 2 || beam.XStart > kRightWall + 1) return "tail beyond a wall";
    if (beam.YStart < kPlayfieldTop || beam.YEnd > kFloor) return "above the top or below the floor";
    if (beam.Color < 0 || beam.Color > 3) return "no colour";
    if (beam.RunMode < kStopped || beam.RunMode > kWaiting) return "no run mode";
    if (beam.Deleted ? beam.Thicknes >= kLiveThicknes : beam.Thicknes != kLiveThicknes) return "both live and dying";
    for (const CLine* linked : beam.LinkedLines)
        if (!Holds(linked->LinkedLines, &beam)) return "linked one way only";
    return {};
}

std::string WrongWith(const VMain& main) {
    for (const CLine* beam : main.Lines)
        if (const std::string wrong = WrongWith(*beam); !wrong.empty()) return InShort(*beam) + ": " + wrong;
    if (std::set(main.Lines.begin(), main.Lines.end()).size() != main.Lines.size()) return "a beam twice in Lines";
    for (const CLine* beam : main.DyingLines)
        if (!beam->Deleted) return InShort(*beam) + ": in DyingLines and not dying";
    if (main.LookAheadBeams.Count() != 0) return "a look-ahead left beams";
    return {};
}

void StartAnyGame(RandomPlayer& player) {
    if (player.Chance(50)) return player.StartArcade();
    player.StartPuzzle(static_cast<std::int16_t>(player.Number(2, kPuzzleCount)), player.Chance(20));
}

TEST(RandomPlay, KeepsWhatMustHold) {
    const auto seed = static_cast<std::uint32_t>(FromEnvironment("PRISMFALL_TEST_SEED", 1));
    const long ticks = FromEnvironment("PRISMFALL_TEST_TICKS", 100'000);
    RandomPlayer player(seed);
    for (long tick = 0; tick < ticks; ++tick) {
        if (player.Main().GameRunning && player.Number(1, 1000) == 1)
            player.Leave();  // a puzzle can come to a standstill
        if (!player.Main().GameRunning) StartAnyGame(player);
        player.PlayATick();
        ASSERT_EQ(WrongWith(player.Main()), "") << "PRISMFALL_TEST_SEED=" << seed << ", tick " << tick;
    }
    EXPECT_GT(player.Main().HighScore, 0) << "beams collide";
    EXPECT_GT(player.Games(), ticks / 1000) << "games come to an end";
}

}  // namespace
}  // namespace prismfall
