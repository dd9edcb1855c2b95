// Watching recorded games, and going on with them.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "platform/KeyInput.h"
#include "tests/support/TestGame.h"
#include "tools/replay/Watch.h"

namespace prismfall {
namespace {

Recording Read(const std::string& name) {
    std::ifstream file(PRISMFALL_TESTS "/recordings/" + name + ".prismfall", std::ios::binary);
    Recording recording;
    EXPECT_FALSE(ReadRecording(std::string(std::istreambuf_iterator<char>(file), {}), recording)) << name;
    return recording;
}

class Watcher : public TestGame, public GameLog {
  public:
    explicit Watcher(const std::string& name) : recording(Read(name)) {
        QuietStore().Load();
        main->log = this;
        main->HighScore = 30;
        main->PuzzlePage = 4;
        watch.emplace(*main, recording);
        TakePrinted();
    }

    void Begins(VMain&, GameKind) override { ++begun; }

    void Press(Key key) { PressKey(machine.Input(), main->window, key); }
    // Watches up to a moment, takes the game over, and does what was recorded from there on.
    void PlayOnFrom(std::int64_t moment) {
        machine.Run(moment);
        machine.QueueAnswer("Command1");
        Press(Key::G);
        for (const RecordedEvent& event : recording.events)
            if (event.moment > moment && !event.isRenewal) Do(event);
    }

    const Recording recording;
    int begun = 0;

  private:
    void Do(const RecordedEvent& event) {
        WindowInput& input = machine.Input();
        machine.Run(event.moment - machine.Clock());
        if (event.kind == InputKind::Press) input.PressSurface(main->window, event.button, event.x, event.y);
        if (event.kind == InputKind::DoubleClick) input.DoubleClickSurface(main->window);
        if (event.kind == InputKind::Restore) input.Resize(main->window, false);
        if (event.kind == InputKind::PressElement)
            input.PressOn(main->window, main->window[event.element], event.button, event.x, event.y);
    }

    std::optional<Watch> watch;
};

TEST(PlayOn, ThePlayerWhoDoesTheSameComesToTheSameEndAndKeepsNothingOfIt) {
    for (const auto& [name, moment, ending] : {std::tuple{"02-puzzle-solved", 283'200, "solved"},
                                               {"04-puzzle-failed", 20'000, "failed"},
                                               {"15-solution-failed", 4'000, "failed"}}) {
        SCOPED_TRACE(name);
        Watcher player(name);
        player.PlayOnFrom(moment);
        const std::int64_t left = player.recording.length - player.Machine().Clock();
        player.Machine().Run(left - 1);
        const std::string dialog = std::string("dialog VPuzzleResult ") + ending + "\n";
        EXPECT_EQ(player.TakePrinted().find(dialog), std::string::npos);
        player.Machine().QueueAnswer(ending == std::string("solved") ? "CommandNext" : "CommandTryAgain");
        player.Machine().Run(1000);
        EXPECT_NE(player.TakePrinted().find(dialog), std::string::npos);
        EXPECT_EQ(std::ranges::count(player.Main().settings.SolvedPuzzles, true), 0);
        EXPECT_EQ(player.Main().PuzzlePage, 4);
        EXPECT_EQ(player.begun, 1) << "the next game is the player's own";
        EXPECT_FALSE(player.Main().IsPlayedOn);
    }
}

TEST(PlayOn, AnArcadeGameGoesOnWithItsScoreAndTheHighScoreComesBackAfterIt) {
    Watcher player("10-arcade-score");
    VMain& main = player.Main();
    player.Machine().Run(38'000);
    player.Press(Key::G);  // and leaves the dialog by its close box
    player.Press(Key::PageUp);
    player.Press(Key::PageDown);
    player.Machine().QueueAnswer("Command1");
    player.Press(Key::G);
    EXPECT_EQ(main.GameMode, Mode::ArcadeGame);
    EXPECT_GT(main.Score, 100);
    EXPECT_GE(main.HighScore, main.Score);
    player.Machine().Run(60'000);  // nobody plays
    EXPECT_EQ(main.GameMode, Mode::MainMenu);
    EXPECT_EQ(main.settings.Scores.front().score, 0);
    EXPECT_EQ(main.HighScore, 30);
    EXPECT_EQ(main.VHighScore.text, "30");
}

TEST(Watch, LeavesTheWindowAsItWas) {
    Watcher player("10-arcade-score");
    VMain& main = player.Main();
    TestGame other;
    other.QuietStore().Load();
    player.Machine().Run(38'000);
    EXPECT_NE(main.VScore.text, other.Main().VScore.text);
    main.window.on.keyDown(kEscapeKey);
    for (std::size_t i = 0; i < main.window.elements.size(); ++i) {
        Element expected = *other.Main().window.elements[i];
        expected.panel = main.window.elements[i]->panel;
        EXPECT_EQ(*main.window.elements[i], expected) << expected.name;
    }
}

}  // namespace
}  // namespace prismfall
