// A player who clicks at random, through whole games of all modes, against what must hold at every tick: of the beams,
// of what is painted, and of the heap. PRISMFALL_TEST_TICKS and PRISMFALL_TEST_SEED can ask for more than one short
// run.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "simulation/Playfield.h"
#include "tests/game/CountedHeap.h"
#include "tests/support/RandomPlayer.h"

namespace prismfall {
namespace {

bool Holds(const std::vector<CLine*>& beams, const CLine* beam) {
    return std::ranges::find(beams, beam) != beams.end();
}

// What is wrong with a beam; empty for nothing.
std::string WrongWith(const CLine& beam) {
    const int across = (beam.XEnd - beam.XStart) * (beam.Direction == kRightwards ? 1 : -1);
    if (across != beam.YEnd - beam.YStart || across < 0) return "not a diagonal in its direction";
    if (beam.XEnd < kLeftWall - 1 || beam.XEnd > kRightWall) return "head beyond a wall";
    if (beam.XStart < kLeftWall - 2 || beam.XStart > kRightWall + 1) return "tail beyond a wall";
    if (beam.YStart < kPlayfieldTop || beam.YEnd > kFloor) return "above the top or below the floor";
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
    return main.LookAheadBeams.Count() == 0 ? "" : "a look-ahead left beams";
}

TEST(RandomPlay, KeepsWhatMustHold) {
    const auto seed = static_cast<std::uint32_t>(FromEnvironment("PRISMFALL_TEST_SEED", 1));
    const long ticks = FromEnvironment("PRISMFALL_TEST_TICKS", 100'000);
    RandomPlayer player(seed);
    const VMain& main = player.Main();
    std::size_t afterHalf = 0;
    int quietTicks = 0;
    for (long tick = 0; tick < ticks; ++tick) {
        if (tick == ticks / 2) afterHalf = heap::liveBytes;
        player.PlayATick();
        ASSERT_EQ(WrongWith(main), "") << "PRISMFALL_TEST_SEED=" << seed << ", tick " << tick;
        // One more tick, watched: it allocates nothing unless it makes a beam.
        const std::size_t beams = main.Beams.Count(), before = heap::allocations;
        if (main.GameMode != kArcadeGame || !main.GameRunning || main.Lines.size() < 10) continue;
        player.Machine().Fire(Timer::LineDeleter);
        EXPECT_EQ(heap::allocations, before) << "tick " << tick;
        player.Machine().Fire(Timer::LineExtender);
        if (main.Beams.Count() != beams || !main.GameRunning) continue;
        EXPECT_EQ(heap::allocations, before) << "tick " << tick;
        ++quietTicks;
    }
    EXPECT_GT(main.HighScore, 0) << "beams collide";
    EXPECT_GT(player.games, ticks / 1000) << "games come to an end";
    EXPECT_GT(quietTicks, ticks / 100);
    EXPECT_LT(heap::liveBytes, afterHalf + 200'000) << "games leave nothing behind but room in lists";
}

}  // namespace
}  // namespace prismfall
