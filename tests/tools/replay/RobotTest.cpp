// A robot plays on a stalling machine: beams, buttons, dialogs, pauses, a window that is minimised. Every game that it
// has played must come out of its recording again, and of a changed recording never. PRISMFALL_TEST_GAMES and
// PRISMFALL_TEST_SEED can ask for more than one short run.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <random>
#include <set>

#include "game/GameRecorder.h"
#include "game/MainWindow.h"
#include "recording/Recording.h"
#include "tests/support/StallingMachine.h"
#include "tools/replay/Verify.h"

namespace prismfall {
namespace {

long FromEnvironment(const char* name, long fallback) {
    const char* text = std::getenv(name);
    return text == nullptr ? fallback : std::atol(text);
}

class Robot {
  public:
    explicit Robot(std::uint32_t seed) : random(seed), machine(silence, seed) {
        machine.PutSetting("General", "PlayFirstTime", Chance(50) ? "True" : "False");
        machine.PutSetting("General", "StartLevel", std::to_string(Number(1, 9)));
        machine.whileDialog = [this] {
            Act(10);
            Act(2);  // what was queued may come after the dialog has been hidden or closed
        };
        MakeMainWindow(main);
        machine.Open(main.window);
        machine.Handle([this] { main.window.on.activate(); });
    }

    std::vector<PlayedGame> Play(std::size_t games) {
        for (int round = 0; round < 4'000'000 && played.size() < games; ++round) {
            machine.ComeRound();
            Act(main.GameRunning ? 400 : 20);
        }
        machine.Input().UseCloseBox(main.window);
        main.window.on.unload();
        return std::move(played);
    }

  private:
    int Number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
    bool Chance(int percent) { return Number(0, 99) < percent; }

    // Once in so many rounds.
    void Act(int rounds) {
        if (Number(1, rounds) > 1) return;
        machine.Handle([this] { DoSomething(*machine.Input().Front()); });
    }

    void DoSomething(Window& front) {
        if (main.GameRunning && Chance(90)) return PressBeam();
        if (front.isDialog && Chance(15)) return machine.Input().UseCloseBox(front);
        if (!front.isDialog && Chance(4)) return machine.Input().Resize(main.window, isMinimised = !isMinimised);
        if (Chance(2)) return machine.Input().Key(front, kEscapeKey);
        if (main.TutorialStep > 0 && Chance(50))
            return PressTutorial(main.PictTut[static_cast<std::size_t>(main.TutorialStep - 1)]);
        if (Chance(20)) return machine.Input().PressSurface(front, MouseButton::Left, 700.F * Share(), 600.F * Share());
        machine.Input().PressAndClick(
            front, *front.elements[static_cast<std::size_t>(Number(0, static_cast<int>(front.elements.size()) - 1))]);
    }

    void PressBeam() {
        if (main.field.Lines.empty()) return;
        const CLine& beam =
            *main.field.Lines[static_cast<std::size_t>(Number(0, static_cast<int>(main.field.Lines.size()) - 1))];
        const auto button = Chance(60) ? MouseButton::Left : MouseButton::Right;
        machine.Input().PressSurface(main.window, button, static_cast<float>(beam.XEnd) + 6 * Share(),
                                     static_cast<float>(beam.YEnd) + 6 * Share());
        if (Chance(8)) machine.Input().DoubleClickSurface(main.window);
    }

    void PressTutorial(Element& picture) {
        const PressSpot& spot = picture.spots[Chance(50) ? 0 : 1];
        machine.Input().PressOn(main.window, picture, Chance(50) ? MouseButton::Left : MouseButton::Right,
                                spot.left + spot.width * Share(), spot.top + spot.height * Share());
    }

    float Share() { return std::uniform_real_distribution<float>(0, 1)(random); }

    std::mt19937 random;
    std::ostream silence{nullptr};
    StallingMachine machine;
    VMain main{machine};
    std::vector<PlayedGame> played;
    GameRecorder recorder{main, [this](const PlayedGame& game) { played.push_back(game); }};
    bool isMinimised = false;
};

TEST(Robot, EveryRecordingOfItsGamesIsTrueAndNoChangedOneIs) {
    const long games = FromEnvironment("PRISMFALL_TEST_GAMES", 150);
    const auto seed = static_cast<std::uint32_t>(FromEnvironment("PRISMFALL_TEST_SEED", std::random_device{}()));
    std::mt19937 random(seed);
    std::set<std::pair<GameKind, GameEnding>> seen;
    long verified = 0;
    for (std::uint32_t run = 0; verified < games; ++run) {
        for (const PlayedGame& game : Robot(seed + run).Play(10)) {
            ++verified;
            seen.insert({game.kind, game.ending});
            const std::string recording = verified % 2 == 0 ? game.recording : WithFewChecks(game.recording);
            const Verdict verdict = VerifyRecording(recording);
            EXPECT_TRUE(verdict.isTrue) << "seed " << seed << " run " << run << ": " << verdict.words;
            std::string changed = recording;
            char& letter = changed[std::uniform_int_distribution<std::size_t>(0, changed.size() - 2)(random)];
            letter = letter == '1' ? '2' : '1';
            EXPECT_FALSE(VerifyRecording(changed).isTrue) << "seed " << seed << " run " << run << '\n' << changed;
        }
    }
    EXPECT_GE(seen.size(), 3U);
}

}  // namespace
}  // namespace prismfall
