// All solutions, for both starting values of GrowthToggle, on the driver's clock and on a terrible one, which advances
// with every reading and stalls. Every stroke and sound must be the same.
#include <gtest/gtest.h>

#include <random>

#include "game/MainWindow.h"
#include "game/PuzzleStart.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

using namespace std::chrono_literals;

// Prints like a headless machine, but has the timers and the game time of a real one.
class StallingMachine : public HeadlessPlatform {
  public:
    StallingMachine(std::ostream& events, std::uint32_t seed) : HeadlessPlatform(events), random(seed) {}

    template <typename Handler>
    void Handle(Handler handler) {
        timers.Handle(handler);
    }
    void ComeRound() { timers.TickDue(); }

    void SetTickHandler(std::function<void(Timer)> handler) override { timers.SetTickHandler(std::move(handler)); }
    void StartTimer(Timer timer) override { timers.Start(timer); }
    void StopTimer(Timer timer) override { timers.Stop(timer); }
    void SetTimerInterval(Timer timer, int milliseconds) override { timers.SetInterval(timer, milliseconds); }
    void LetEventsRun() override {
        timers.LetEventsRun([] { return false; });
    }
    void PlayWave(Wave wave, bool wait) override {
        HeadlessPlatform::PlayWave(wave, wait);
        const GameTime::Standstill sound(time);
        if (wait) clock += 700ms;
    }

  private:
    Nanoseconds Look() {
        const auto upTo = [this](Nanoseconds most) {
            return Nanoseconds(std::uniform_int_distribution<std::int64_t>(1, most.count())(random));
        };
        const bool stalls = upTo(Nanoseconds(100)).count() == 1;
        return clock += upTo(stalls ? 500ms : 3ms);
    }

    std::mt19937 random;
    Nanoseconds clock{0};
    GameTime time{[this] { return Look(); }};
    TimerWheel timers{time};
};

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
