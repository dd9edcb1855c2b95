// What the game asks of the heap: nothing in a tick that makes no beam, no growth in a game that lasts for hours,
// nothing left by any game. PRISMFALL_TEST_HOURS, if it is set, says how long is played for the last of these.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "game/GameControl.h"
#include "game/PlayerInput.h"
#include "game/PuzzleTables.h"
#include "simulation/BeamRemoval.h"
#include "simulation/Playfield.h"
#include "tests/game/CountedHeap.h"
#include "tests/support/RandomPlayer.h"

namespace prismfall {
namespace {

constexpr std::int64_t kHour = 3'600'000;      // milliseconds
constexpr std::size_t kRoomOfLists = 100'000;  // bytes; they keep what their longest game took

// Plays an Arcade game at the speed of level 1 that never ends: it clicks at random, and destroys what comes low.
class EndlessGame {
  public:
    EndlessGame() {
        main = &game.QuietStore().Load();
        main->SoundEffects = false;  // so that nothing is printed
        CommandArcade_Click(*main);
    }

    void PlayATick() {
        main->LevelLineCount = 0;
        main->Score = 0;
        if (Number(1, 30) == 1) Press(Number(1, 3) == 1 ? MouseButton::Right : MouseButton::Left);
        ClearTheWay();
        game.Machine().Run(75);
    }

    VMain& Main() { return *main; }
    HeadlessPlatform& Machine() { return game.Machine(); }

  private:
    int Number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }

    void Destroy(CLine& beam) { StartRemoval(*main, beam, false); }

    // Also the oldest, before the playfield is blocked and no beam comes any more.
    void ClearTheWay() {
        for (CLine* beam : main->Lines)
            if (!beam->Deleted && beam->YEnd > 560) Destroy(*beam);
        if (main->Lines.size() < 40) return;
        const auto oldest = std::ranges::find_if(main->Lines, [](const CLine* beam) { return !beam->Deleted; });
        if (oldest != main->Lines.end()) Destroy(**oldest);
    }

    void Press(MouseButton button) {
        if (main->Lines.empty()) return;
        const CLine& beam = *main->Lines[static_cast<std::size_t>(Number(0, static_cast<int>(main->Lines.size()) - 1))];
        Form_MouseDown(*main, button, beam.XEnd, beam.YEnd);
    }

    TestGame game;
    VMain* main;
    std::mt19937 random{9};
};

TEST(Memory, ATickThatMakesNoBeamAllocatesNothing) {
    EndlessGame endless;
    VMain& main = endless.Main();
    for (int tick = 0; tick < 20'000; ++tick) endless.PlayATick();
    int ticks = 0, removals = 0;
    for (int i = 0; i < 20'000; ++i) {
        endless.PlayATick();
        for (const Timer timer : {Timer::LineExtender, Timer::LineDeleter}) {
            const std::size_t beams = main.Beams.Count(), lines = main.Lines.size(), before = heap::allocations;
            endless.Machine().Fire(timer);
            if (timer == Timer::LineExtender && main.Beams.Count() != beams) continue;
            EXPECT_EQ(heap::allocations - before, 0U) << "tick " << i;
            ++ticks;
            if (main.Lines.size() < lines) ++removals;
        }
    }
    EXPECT_GT(ticks, 30'000);
    EXPECT_GT(removals, 100);
}

TEST(Memory, AGameOfTenHoursStaysSmall) {
    constexpr int kTicks = 10 * kHour / 75;
    const std::size_t before = heap::liveBytes;
    EndlessGame endless;
    std::size_t most = 0, mostBeams = 0;
    for (int tick = 0; tick < kTicks; ++tick) {
        endless.PlayATick();
        ASSERT_TRUE(endless.Main().GameRunning) << "tick " << tick;
        most = std::max(most, heap::liveBytes - before);
        mostBeams = std::max(mostBeams, endless.Main().Beams.Count());
    }
    EXPECT_LT(most, 16U << 20U);
    EXPECT_LT(mostBeams, 1000U);
    RecordProperty("most_bytes", std::to_string(most));
    RecordProperty("most_beams", std::to_string(mostBeams));
}

// All puzzles, each played for a while and then watched, and Arcade for the rest of the hour.
void PlayAnHour(RandomPlayer& player) {
    const std::int64_t end = player.Spent() + kHour;
    const auto playUntil = [&](std::int64_t moment) {
        while (player.Main().GameRunning && player.Spent() < moment) player.PlayATick();
        if (player.Main().GameRunning) player.Leave();
    };
    for (const bool isSolution : {false, true}) {
        for (std::int16_t puzzle = isSolution ? 1 : 2; puzzle <= kPuzzleCount; ++puzzle) {
            player.StartPuzzle(puzzle, isSolution);
            playUntil(player.Spent() + 20'000);
        }
    }
    while (player.Spent() < end) {
        player.StartArcade();
        playUntil(end);
    }
}

TEST(Memory, HoursOfPlayLeaveNothingBehind) {
    const long hours = FromEnvironment("PRISMFALL_TEST_HOURS", 2);
    RandomPlayer player(3);
    PlayAnHour(player);
    const std::size_t afterAnHour = heap::liveBytes;
    for (int hour = 2; hour <= hours; ++hour) {
        PlayAnHour(player);
        EXPECT_LT(heap::liveBytes, afterAnHour + kRoomOfLists) << "hour " << hour;
    }
    EXPECT_GT(player.Games(), hours * 100);
}

}  // namespace
}  // namespace prismfall
