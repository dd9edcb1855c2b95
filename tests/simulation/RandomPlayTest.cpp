// A player who clicks at random, through whole games of both modes, against what must hold at every tick. The length
// and the seed come from PRISMFALL_TEST_TICKS and PRISMFALL_TEST_SEED, if they are set.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <set>

#include "game/GameControl.h"
#include "game/PuzzleStart.h"
#include "simulation/BeamRemoval.h"
#include "simulation/PlayerInput.h"
#include "simulation/Playfield.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

long FromEnvironment(const char* name, long fallback) {
    const char* text = std::getenv(name);
    return text == nullptr ? fallback : std::atol(text);
}

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

class RandomPlayer {
  public:
    explicit RandomPlayer(std::uint32_t seed) : random(seed) {
        main = &game.QuietStore().Load();
        main->SoundEffects = false;
    }

    // Starts a game if none is in play, clicks now and then, and lets about one growth tick pass.
    void PlayATick() {
        if (main->GameRunning && Number(1, 1000) == 1) CommandExit_Click(*main);  // a puzzle can come to a standstill
        if (!main->GameRunning) StartGame();
        if (Chance(12)) Press();
        game.Machine().Run(game.Machine().Timers().Interval(Timer::LineExtender));
        game.TakePrinted();
    }

    const VMain& Main() const { return *main; }
    int Games() const { return games; }

  private:
    int Number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
    bool Chance(int percent) { return Number(0, 99) < percent; }

    void StartGame() {
        ++games;
        main->StartLevel = static_cast<std::int16_t>(Number(1, 12));
        if (Chance(50)) return CommandArcade_Click(*main);
        main->CurrentPuzzle = static_cast<std::int16_t>(Number(2, kPuzzleCount));  // without the tutorial
        const bool isReplay = Chance(20);
        StartPuzzleGame(*main, false, isReplay);
        if (!isReplay || Chance(50)) CmdStart_Click(*main);  // starts it, or takes it over
    }

    // A bend of a beam that stands on a wall leads out of the field, so that is left out.
    void Press() {
        int x = Number(0, 700), y = Number(0, 600);
        if (!main->Lines.empty() && Chance(90)) {
            const CLine& beam =
                *main->Lines[static_cast<std::size_t>(Number(0, static_cast<int>(main->Lines.size()) - 1))];
            x = beam.XEnd + Number(-9, 9);
            y = beam.YEnd + Number(-9, 9);
        }
        const CLine* hit = FindNearestLine(*main, Saturated(x), Saturated(y));
        const bool isOnWall = hit != nullptr && (hit->XEnd < kLeftWall || hit->XEnd >= kRightWall);
        const MouseButton button = Chance(70) && !isOnWall ? MouseButton::Left : MouseButton::Right;
        Form_MouseDown(*main, button, static_cast<float>(x), static_cast<float>(y));
        if (!isOnWall && Chance(8)) Form_DblClick(*main);
    }

    TestGame game;
    VMain* main;
    std::mt19937 random;
    int games = 0;
};

TEST(RandomPlay, KeepsWhatMustHold) {
    const auto seed = static_cast<std::uint32_t>(FromEnvironment("PRISMFALL_TEST_SEED", 1));
    const long ticks = FromEnvironment("PRISMFALL_TEST_TICKS", 100'000);
    RandomPlayer player(seed);
    for (long tick = 0; tick < ticks; ++tick) {
        player.PlayATick();
        ASSERT_EQ(WrongWith(player.Main()), "") << "PRISMFALL_TEST_SEED=" << seed << ", tick " << tick;
    }
    EXPECT_GT(player.Main().HighScore, 0) << "beams collide";
    EXPECT_GT(player.Games(), ticks / 1000) << "games come to an end";
}

}  // namespace
}  // namespace prismfall
