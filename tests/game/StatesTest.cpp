// The state machine, where the stories do not cover it: what is behind a dialog, and where its answers lead. A state
// looks like "MODE running C E D S P": C, E and D are the game timers that run, S and P the buttons CmdStart and
// cmdPause if visible.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "game/GameControl.h"
#include "game/PuzzleStart.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

std::string Looks(TestGame& game) {
    const VMain& main = game.Main();
    const auto& timers = game.Machine().Timers();
    std::string looks = std::to_string(static_cast<int>(main.GameMode));
    for (const auto& [holds, word] : {std::pair{main.GameRunning, " running"},
                                      {timers.IsOn(Timer::LineCreator), " C"},
                                      {timers.IsOn(Timer::LineExtender), " E"},
                                      {timers.IsOn(Timer::LineDeleter), " D"},
                                      {IsShown(main.CmdStart), " S"},
                                      {IsShown(main.cmdPause), " P"}})
        if (holds) looks += word;
    return looks;
}

// Executes one word.
void Do(TestGame& game, const std::string& what) {
    VMain& main = game.Main();
    const bool isFirst = what == "tutorial";
    if (what == "lose" || what == "solve") {
        main.field.Lines.clear();
        // One beam that has reached the floor; or two of one colour about to collide, and the time they need.
        AddBeams(game.Main().field,
                 what == "lose" ? "100,500 185,585 green" : "100,100 150,150 green; 220,100 170,150 green");
        if (what == "solve") return game.Machine().Run(2000);
        return game.Machine().Fire(Timer::LineExtender);
    }
    if (what == "puzzle" || what == "replay" || isFirst) {
        main.CurrentPuzzle = isFirst ? 1 : 2;
        StartPuzzleGame(main, false, what == "replay");
        if (what != "replay") game.Click("CmdStart");
        if (isFirst) game.Machine().Run(75);
    } else {
        game.Click(what);
    }
}

// What is done, word by word; the button that answers the last word's dialog, or closing it; the state behind the
// dialog; the state after it.
constexpr char kDialogs[] = R"(
    CommandArcade lose       |                 | 3 P             | 0
    puzzle lose              |                 | 2 S P           | 2 S P
    puzzle lose              | Command1        | 2 S P           | 1
    puzzle solve             |                 | 2 running S P   | 2 S P
    puzzle solve             | CommandNext     | 2 running S P   | 2 S
    puzzle CmdScores         |                 | 2 S P           | 2 running E D S P
    tutorial CmdOptions      |                 | 2 running D S P | 2 running D S P
    replay lose              | CommandSolution | 4 S             | 4 running E D S
    replay solve             | Command1        | 4 running S     | 1
    replay CmdAbout          |                 | 4 S             | 4 running E D S
    replay CmdStart solve    | Command1        | 2 running S     | 1
    replay CmdStart CmdStart |                 | no dialog       | 2 S
)";

TEST(States, DialogsLeadOnAndNothingRunsBehindThem) {
    for (const auto& row : Rows(kDialogs)) {
        SCOPED_TRACE(row[0]);
        TestGame game;
        game.QuietStore().Load();
        std::string behind = "no dialog";
        game.Machine().onDialog = [&](Window&) { behind = Looks(game); };
        if (!row[1].empty()) game.Machine().QueueAnswer(row[1]);
        std::istringstream words(row[0]);
        for (std::string word; words >> word;) Do(game, word);
        EXPECT_EQ(behind, row[2]);
        EXPECT_EQ(Looks(game), row[3]);
    }
}

TEST(States, AnArcadeGameBeginsAfresh) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    main.HighScore = 90;
    main.Score = main.LevelLineCount = 70;
    main.VScore.text = "70";
    AddBeams(game.Main().field, "21,100 31,110 blue");
    game.Machine().SetPainting(true);
    game.Click("CommandArcade");
    EXPECT_EQ(game.TakePrinted(), "sound 7 sync\nclear\nclear\nline 14 60 670 60 0xFF0000 1\n");
    EXPECT_EQ(main.field.Lines.size(), 3U);
    EXPECT_EQ(main.VScore.text + '/' + std::to_string(main.Score), "0/0");
    EXPECT_EQ(std::tuple(main.LevelLineCount, main.HighScore), std::tuple(0, 90));
}

// Input does not reach the game while it is ending.
TEST(States, AGamesEndTakesNoInput) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    game.Click("CommandArcade");
    main.Score = 30;
    int yields = 0;
    game.Machine().onYield = [&] {
        ++yields;
        const std::string before = InShort(main.field) + Looks(game);
        const WindowInput& input = game.Machine().Input();
        input.PressSurface(main.window, MouseButton::Left, 185, 585);
        input.DoubleClickSurface(main.window);
        input.Key(main.window, kEscapeKey);
        for (const std::string_view button : {"CommandExit", "cmdPause", "CmdAbout", "CommandPuzzle"})
            game.Click(button);
        EXPECT_EQ(InShort(main.field) + Looks(game), before);
    };
    game.TakePrinted();
    Do(game, "lose");
    EXPECT_EQ(yields, 291) << "one, then 29 bands of 10 ms";
    EXPECT_EQ(game.TakePrinted(), "sound 5 sync\ndialog VHighScore2\n");
    game.Machine().onYield = nullptr;
    game.Click("CmdAbout");
    EXPECT_EQ(game.TakePrinted(), "sound 7 sync\ndialog VAbout\n") << "and afterwards input works again";
}

}  // namespace
}  // namespace prismfall
