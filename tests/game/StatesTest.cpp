// The state machine where the stories leave it out: what stands behind a dialog, and where its answers lead. A state
// looks like "MODE running|still TIMERS BUTTONS", with C, E and D for the game's timers that run, S and P for the
// buttons CmdStart and cmdPause that show.
#include <gtest/gtest.h>

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
    const auto& timers = game.Machine().Timers();
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

// One beam that has come down to the floor, and one tick.
void Lose(TestGame& game) {
    game.Main().Lines.clear();
    game.Add("100,500 185,585 green");
    game.Machine().Fire(Timer::LineExtender);
}

// Two beams of one colour before their collision, and time for it.
void Solve(TestGame& game) {
    game.Main().Lines.clear();
    game.Add("100,100 150,150 green; 220,100 170,150 green");
    game.Machine().Run(2000);
}

void StartArcade(TestGame& game) { game.Click("CommandArcade"); }

void StartPuzzle(TestGame& game) {
    game.Main().CurrentPuzzle = 2;
    StartPuzzleGame(game.Main(), false, false);
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

void TakeOver(TestGame& game) {
    StartReplay(game);
    game.Click("CmdStart");
}

TEST(States, DialogsLeadOnAndNothingRunsBehindThem) {
    struct Case {
        const char* name;
        Act start, event;
        const char* answer;  // empty for the close box
        const char* behind;
        const char* after;
    };
    const Case kCases[] = {
        {"Arcade lost", StartArcade, Lose, "", "3 still  P", "0 still  "},
        {"puzzle lost, closed", StartPuzzle, Lose, "", "2 still  SP", "2 still  SP"},
        {"puzzle lost, menu", StartPuzzle, Lose, "Command1", "2 still  SP", "1 still  "},
        {"puzzle solved, closed", StartPuzzle, Solve, "", "2 running  SP", "2 still  SP"},
        {"puzzle solved, next", StartPuzzle, Solve, "CommandNext", "2 running  SP", "2 still  S"},
        {"puzzle, scores", StartPuzzle, Click("CmdScores"), "", "2 still  SP", "2 running ED SP"},
        {"tutorial, options", Tutorial, Click("CmdOptions"), "", "2 running D SP", "2 running D SP"},
        {"replay lost, solution", StartReplay, Lose, "CommandSolution", "4 still  S", "4 running ED S"},
        {"replay solved, menu", StartReplay, Solve, "Command1", "4 running  S", "1 still  "},
        {"replay, About", StartReplay, Click("CmdAbout"), "", "4 still  S", "4 running ED S"},
        {"taken over, solved, menu", TakeOver, Solve, "Command1", "2 running  S", "1 still  "},
        {"taken over, restarted", TakeOver, Click("CmdStart"), "", "no dialog", "2 still  S"}};
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.name);
        TestGame game;
        game.QuietStore().Load();
        c.start(game);
        std::string behind = "no dialog";
        game.Machine().onDialog = [&](Window&) { behind = Looks(game); };
        if (*c.answer != 0) game.Machine().QueueAnswer(c.answer);
        c.event(game);
        EXPECT_EQ(behind, c.behind);
        EXPECT_EQ(Looks(game), c.after);
    }
}

TEST(States, AnArcadeGameBeginsAfresh) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    main.StartLevel = 4;
    main.HighScore = 90;
    main.Score = main.LevelLineCount = 70;
    main.VScore.text = "70";
    game.Add("21,100 31,110 blue");
    game.Machine().SetPainting(true);
    StartArcade(game);
    EXPECT_EQ(game.TakePrinted(), "sound 7 sync\nclear\nclear\nline 14 60 670 60 0xFF0000 1\n");
    ASSERT_EQ(main.Lines.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(main.Lines[i]->YStart, 20 + 20 * static_cast<int>(i));
    EXPECT_EQ(main.VScore.text + '/' + main.VLevel.text + '/' + std::to_string(main.Score), "0/4/0");
    EXPECT_EQ(std::tuple(main.LevelLineCount, main.GameStartLevel, main.HighScore), std::tuple(0, 4, 90));
    EXPECT_EQ(game.Machine().Timers().Interval(Timer::LineExtender), 38);
    EXPECT_EQ(game.Machine().Timers().Interval(Timer::LineCreator), 1280);
}

// While the steps of a game's end run, nothing of what the player does reaches the game.
TEST(States, AGamesEndTakesNoInput) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    StartArcade(game);
    main.Score = 30;
    int yields = 0;
    game.Machine().onYield = [&] {
        ++yields;
        const std::string before = InShort(main) + Looks(game);
        const WindowInput& input = game.Machine().Input();
        input.PressSurface(main.window, MouseButton::Left, 185, 585);
        input.DoubleClickSurface(main.window);
        input.Key(main.window, kEscapeKey);
        for (const std::string_view button : {"CommandExit", "cmdPause", "CmdAbout", "CommandPuzzle"})
            game.Click(button);
        EXPECT_EQ(InShort(main) + Looks(game), before);
    };
    game.TakePrinted();
    Lose(game);
    EXPECT_EQ(yields, 291) << "one, then 29 bands of 10 ms";
    EXPECT_EQ(game.TakePrinted(), "sound 5 sync\ndialog VHighScore2\n");
    game.Machine().onYield = nullptr;
    game.Click("CmdAbout");
    EXPECT_EQ(game.TakePrinted(), "sound 7 sync\ndialog VAbout\n") << "and afterwards it takes it again";
}

}  // namespace
}  // namespace prismfall
