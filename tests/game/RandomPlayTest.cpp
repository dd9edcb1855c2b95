// A player who clicks at random, through whole games of all modes, with checks at every tick: of the beams, the pixels
// and the settings. PRISMFALL_TEST_TICKS and PRISMFALL_TEST_SEED select more than one short run.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <set>

#include "game/GameControl.h"
#include "game/PlayerInput.h"
#include "game/PuzzleStart.h"
#include "platform/Numbers.h"
#include "simulation/BeamControl.h"
#include "simulation/Playfield.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

// An integer from the environment, or `fallback`.
long FromEnvironment(const char* name, long fallback) {
    const char* text = std::getenv(name);
    return text == nullptr ? fallback : std::atol(text);
}

class RandomPlayer : public TestGame {
  public:
    explicit RandomPlayer(std::uint32_t seed) : random(seed) { QuietStore().Load().settings.SoundEffects = false; }

    // Clicks now and then, and lets about one growth tick pass. Between games, starts a puzzle, a replay or an Arcade
    // game at a random level.
    void PlayATick() {
        if (main->GameRunning && Number(1, 1000) == 1) CommandExit_Click(*main);  // a puzzle can come to a standstill
        if (!main->GameRunning) StartAGame();
        if (Chance(12)) Press();
        machine.Run(machine.Timers().Interval(Timer::LineExtender));
        TakePrinted();
    }

    int games = 0;

  private:
    int Number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
    bool Chance(int percent) { return Number(0, 99) < percent; }

    void StartAGame() {
        ++games;
        main->settings.StartLevel = static_cast<std::int16_t>(Number(1, 12));
        if (Chance(50)) return CommandArcade_Click(*main);
        const bool isSolution = Chance(20);
        main->CurrentPuzzle = static_cast<std::int16_t>(Number(2, kPuzzleCount));  // 1 has the tutorial
        StartPuzzleGame(*main, false, isSolution);
        if (!isSolution) CmdStart_Click(*main);
    }

    // Mostly on beams. Bending a beam that touches a wall would take it out of the field, so that is left out.
    void Press() {
        int x = Number(0, 700), y = Number(0, 600);
        if (!main->field.Lines.empty() && Chance(90)) {
            const CLine& beam = Beam(static_cast<std::size_t>(Number(1, static_cast<int>(main->field.Lines.size()))));
            x = beam.XEnd + Number(-9, 9);
            y = beam.YEnd + Number(-9, 9);
        }
        const CLine* hit = FindNearestLine(main->field, Saturated(x), Saturated(y));
        const bool isOnWall = hit != nullptr && (hit->XEnd < kLeftWall || hit->XEnd >= kRightWall);
        const MouseButton button = Chance(70) && !isOnWall ? MouseButton::Left : MouseButton::Right;
        Form_MouseDown(*main, button, static_cast<float>(x), static_cast<float>(y));
        if (!isOnWall && Chance(8)) Form_DblClick(*main);
    }

    std::mt19937 random;
};

bool Holds(const std::vector<CLine*>& beams, const CLine* beam) {
    return std::ranges::find(beams, beam) != beams.end();
}

// What is wrong with a beam; empty if nothing is.
std::string WrongWith(const CLine& beam) {
    const int across = (beam.XEnd - beam.XStart) * (beam.Direction == Heading::Rightwards ? 1 : -1);
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
    for (const CLine* beam : main.field.Lines)
        if (const std::string wrong = WrongWith(*beam); !wrong.empty()) return InShort(*beam) + ": " + wrong;
    if (std::set(main.field.Lines.begin(), main.field.Lines.end()).size() != main.field.Lines.size())
        return "a beam twice in Lines";
    for (const CLine* beam : main.field.DyingLines)
        if (!beam->Deleted) return InShort(*beam) + ": in DyingLines and not dying";
    return "";
}

TEST(RandomPlay, KeepsTheInvariants) {
    const auto seed = static_cast<std::uint32_t>(FromEnvironment("PRISMFALL_TEST_SEED", 1));
    const long ticks = FromEnvironment("PRISMFALL_TEST_TICKS", 60'000);
    RandomPlayer player(seed);
    const VMain& main = player.Main();
    for (long tick = 0; tick < ticks; ++tick) {
        player.PlayATick();
        ASSERT_EQ(WrongWith(main), "") << "PRISMFALL_TEST_SEED=" << seed << ", tick " << tick;
        ASSERT_LT(main.field.Beams.Count(), 1000U) << "removed beams are not kept";
    }
    EXPECT_GT(main.HighScore, 0) << "beams collide";
    EXPECT_GT(player.games, ticks / 1000) << "games end";
}

}  // namespace
}  // namespace prismfall
