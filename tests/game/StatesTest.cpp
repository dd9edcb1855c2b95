// The state machine: what stands in each state, and where each event leads from it. A state looks like
// "MODE running|still TIMERS BUTTONS", with C, E and D for the game's timers that run, S and P for the buttons CmdStart
// and cmdPause that show.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "game/GameControl.h"
#include "game/PuzzleStart.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

using Act = std::function<void(TestGame& game)>;

std::string Looks(TestGame& game) {
    const VMain& main = game.Main();
    const VirtualTimers& timers = game.Machine().Timers();
    std::string looks = std::to_string(main.GameMode) + (main.GameRunning ? " running " : " still ");
    if (timers.IsOn(Timer::LineCreator)) looks += 'C';
    if (timers.IsOn(Timer::LineExtender)) looks += 'E';
    if (timers.IsOn(Timer::LineDeleter)) looks += 'D';
    looks += ' ';
    if (IsShown(main.CmdStart)) looks += 'S';
    if (IsShown(main.cmdPause)) looks += 'P';
    return looks;
}

Act Click(std::string_view button) {
    return [button](TestGame& game) { game.Click(button); };
}

void Escape(TestGame& game) { game.Main().window.on.keyDown(kEscapeKey); }
void OtherKey(TestGame& game) { game.Main().window.on.keyDown(13); }
void Minimise(TestGame& game) { game.Main().window.on.resize(true); }
void Restore(TestGame& game) { game.Main().window.on.resize(false); }
void PressPreview(TestGame& game) { game.Main().window.on.mouseDown(MouseButton::Left, 600, 500); }  // puzzle 9

// One beam that has come down to the floor, and one tick.
void Lose(TestGame& game) {
    game.Main().Lines.clear();
    game.AddBeam(100, 500, 185, 585, 1);
    game.Machine().Fire(Timer::LineExtender);
}

// Two beams of one colour before their collision, and time for it.
void Solve(TestGame& game) {
    game.Main().Lines.clear();
    game.AddBeam(100, 100, 150, 150, 1);
    game.AddBeam(220, 100, 170, 150, 1);
    game.Machine().Run(2000);
}

Act AnsweringAll(const Act& event, const char* answer) {
    return [event, answer](TestGame& game) {
        game.Machine().QueueAnswer(answer);
        event(game);
    };
}

struct State {
    std::string_view name;
    void (*enter)(TestGame& game);  // from the main menu
    std::string_view looks;
};

void StartArcade(TestGame& game) { game.Click("CommandArcade"); }

void Wait(TestGame& game) {
    game.Main().CurrentPuzzle = 2;
    StartPuzzleGame(game.Main(), false, false);
}

void StartPuzzle(TestGame& game) {
    Wait(game);
    game.Click("CmdStart");
}

void StartReplay(TestGame& game) {
    game.Main().CurrentPuzzle = 2;
    StartPuzzleGame(game.Main(), false, true);
}

void Tutorial(TestGame& game) {
    game.Main().CurrentPuzzle = 1;
    StartPuzzleGame(game.Main(), false, false);
    game.Click("CmdStart");
    game.Machine().Run(75);
}

constexpr std::array<State, 11> kStates = {{
    {"main menu", [](TestGame&) {}, "0 still  "},
    {"puzzle menu", [](TestGame& game) { game.Click("CommandPuzzle"); }, "1 still  "},
    {"Arcade", StartArcade, "3 running CED P"},
    {"Arcade paused", [](TestGame& game) { StartArcade(game), game.Click("cmdPause"); }, "3 still  P"},
    {"waiting", Wait, "2 still  S"},
    {"puzzle", StartPuzzle, "2 running ED SP"},
    {"puzzle paused", [](TestGame& game) { StartPuzzle(game), game.Click("cmdPause"); }, "2 still  SP"},
    {"tutorial", Tutorial, "2 running D SP"},
    {"replay", StartReplay, "4 running ED S"},
    {"taken over", [](TestGame& game) { StartReplay(game), game.Click("CmdStart"); }, "2 running ED S"},
    {"taken over, still", [](TestGame& game) { StartReplay(game), game.Click("CmdStart"), Minimise(game); },
     "2 still  S"},
}};

const State& StateOf(std::string_view name) { return *std::ranges::find(kStates, name, &State::name); }

TEST(States, StandAsTold) {
    for (const State& state : kStates) {
        TestGame game;
        game.QuietStore().Load();
        state.enter(game);
        EXPECT_EQ(Looks(game), state.looks) << state.name;
    }
}

TEST(States, EventsLeadOn) {
    struct Transition {
        std::string_view from;
        std::string_view event;
        Act act;
        std::string_view to;
    };
    const Transition kTransitions[] = {
        {"main menu", "other key", OtherKey, "main menu"},
        {"main menu", "Arcade", Click("CommandArcade"), "Arcade"},
        {"main menu", "Puzzle", Click("CommandPuzzle"), "puzzle menu"},
        {"puzzle menu", "preview", PressPreview, "waiting"},
        {"puzzle menu", "exit", Click("CommandExit"), "main menu"},
        {"puzzle menu", "Esc", Escape, "main menu"},
        {"Arcade", "pause", Click("cmdPause"), "Arcade paused"},
        {"Arcade", "minimise", Minimise, "Arcade paused"},
        {"Arcade", "exit", Click("CommandExit"), "main menu"},
        {"Arcade", "Esc", Escape, "main menu"},
        {"Arcade", "floor", Lose, "main menu"},
        {"Arcade", "About", Click("CmdAbout"), "Arcade"},
        {"Arcade paused", "resume", Click("cmdPause"), "Arcade"},
        {"Arcade paused", "restore", Restore, "Arcade paused"},
        {"Arcade paused", "About", Click("CmdAbout"), "Arcade paused"},
        {"waiting", "start", Click("CmdStart"), "puzzle"},
        {"waiting", "Esc", Escape, "puzzle menu"},
        {"waiting", "minimise", Minimise, "waiting"},
        {"puzzle", "restart", Click("CmdStart"), "waiting"},
        {"puzzle", "pause", Click("cmdPause"), "puzzle paused"},
        {"puzzle", "minimise", Minimise, "puzzle paused"},
        {"puzzle", "exit", Click("CommandExit"), "puzzle menu"},
        {"puzzle", "scores", Click("CmdScores"), "puzzle"},
        {"puzzle", "solved, next", AnsweringAll(Solve, "CommandNext"), "waiting"},
        {"puzzle", "solved, menu", AnsweringAll(Solve, "Command1"), "puzzle menu"},
        {"puzzle", "solved, closed", Solve, "puzzle paused"},
        {"puzzle", "lost, again", AnsweringAll(Lose, "CommandTryAgain"), "waiting"},
        {"puzzle", "lost, solution", AnsweringAll(Lose, "CommandSolution"), "replay"},
        {"puzzle", "lost, menu", AnsweringAll(Lose, "Command1"), "puzzle menu"},
        {"puzzle paused", "resume", Click("cmdPause"), "puzzle"},
        {"puzzle paused", "restart", Click("CmdStart"), "waiting"},
        {"puzzle paused", "restore", Restore, "puzzle paused"},
        {"tutorial", "pause", Click("cmdPause"), "tutorial"},
        {"tutorial", "options", Click("CmdOptions"), "tutorial"},
        {"tutorial", "restart", Click("CmdStart"), "waiting"},
        {"tutorial", "Esc", Escape, "puzzle menu"},
        {"replay", "take over", Click("CmdStart"), "taken over"},
        {"replay", "Esc", Escape, "puzzle menu"},
        {"replay", "About", Click("CmdAbout"), "replay"},
        {"replay", "minimise and restore", [](TestGame& game) { Minimise(game), Restore(game); }, "replay"},
        {"replay", "solved, menu", AnsweringAll(Solve, "Command1"), "puzzle menu"},
        {"replay", "lost, solution", AnsweringAll(Lose, "CommandSolution"), "replay"},
        {"taken over", "restart", Click("CmdStart"), "waiting"},
        {"taken over", "minimise", Minimise, "taken over, still"},
        {"taken over, still", "restore", Restore, "taken over, still"},
        {"taken over, still", "restart", Click("CmdStart"), "waiting"},
    };
    for (const Transition& transition : kTransitions) {
        TestGame game;
        game.QuietStore().Load();
        StateOf(transition.from).enter(game);
        transition.act(game);
        EXPECT_EQ(Looks(game), StateOf(transition.to).looks) << transition.from << ", " << transition.event;
    }
}

TEST(States, NothingRunsBehindTheDialogOfAnEnd) {
    struct Case {
        std::string_view from;
        Act end;
        std::string_view looks;
    };
    const Case kCases[] = {{"Arcade", Lose, "3 still  P"},    {"puzzle", Lose, "2 still  SP"},
                           {"replay", Lose, "4 still  S"},    {"puzzle", Solve, "2 running  SP"},
                           {"replay", Solve, "4 running  S"}, {"taken over", Solve, "2 running  S"}};
    for (const Case& ending : kCases) {
        TestGame game;
        game.QuietStore().Load();
        StateOf(ending.from).enter(game);
        std::string looks = "no dialog";
        game.Machine().onDialog = [&](Window&) { looks = Looks(game); };
        ending.end(game);
        EXPECT_EQ(looks, ending.looks) << ending.from;
        EXPECT_FALSE(game.Main().GameRunning) << ending.from;
    }
}

TEST(States, AnArcadeGameBeginsAfresh) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    main.StartLevel = 4;
    main.HighScore = 90;
    main.Score = 70;
    main.LevelLineCount = 5;
    main.CollisionLineY = 0;
    game.AddBeam(21, 100, 31, 110, 0);
    game.Machine().SetPainting(true);
    StartArcade(game);
    EXPECT_EQ(game.TakePrinted(), "sound 7 sync\nclear\nclear\nline 14 60 670 60 0xFF0000 1\n");
    ASSERT_EQ(main.Lines.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(main.Lines[i]->YStart, 20 + 20 * static_cast<int>(i));
    EXPECT_EQ(main.VScore.text + '/' + main.VLevel.text + '/' + std::to_string(main.Score), "0/4/0");
    EXPECT_EQ(main.LevelLineCount, 0);
    EXPECT_EQ(main.GameStartLevel, 4);
    EXPECT_EQ(main.HighScore, 90);
    EXPECT_EQ(game.Machine().Timers().Interval(Timer::LineExtender), 38);
    EXPECT_EQ(game.Machine().Timers().Interval(Timer::LineCreator), 1280);
}

}  // namespace
}  // namespace prismfall
