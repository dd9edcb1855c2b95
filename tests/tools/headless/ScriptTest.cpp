// What a script may contain: words, ranges, and commands that need a running program. What commands do is tested by the
// stories.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tools/headless/HeadlessDriver.h"

namespace prismfall {
namespace {

constexpr char kQuiet[] = "setting General PlayFirstTime False\nsetting General Music False\nload\n";

// Runs a script with each command of a list in turn (each ends with a semicolon), and passes the result to `check`.
template <typename Check>
void Try(const std::string& before, const std::string& commands, const std::string& after, Check check) {
    std::istringstream list(commands);
    for (std::string command; std::getline(list >> std::ws, command, ';');) {
        SCOPED_TRACE(command);
        std::istringstream script(before + command + '\n' + after);
        std::ostringstream printed, errors;
        const int status = RunScript(script, printed, errors);
        check(status, printed.str(), errors.str());
    }
}

TEST(Script, ABadLineEndsTheRunAndSaysWhich) {
    Try(std::string(kQuiet) + "click CmdAbout\n\n", R"(
        jump; Load; load; run; run -1; run 1.5; run 75 75; run 0x10; run +5; run 99999999999; activate 1; move 1; move 1 x;
        press 0 1 1; press 3 1 1; press 1 1; press 1 1e2 1; press 1 nan 1; press 1 inf 1; press 1 1 1 1; click; click cmdStart;
        click LabelSolved9; click PuzzleUp; picture 0 1 1 1; picture 9 1 1 1; picture 1 3 1 1; picture 1 1 1; key; key Esc;
        key 32768; setting General Music; setting General Music True True; random; seed; seed -1; seed 1.5; random 1; random -0.1; random 0.5 x; music;
        music on; paint; paint yes; answer; fire; fire Timer; fire LineExtender -1; fire LineExtender 1 1; set Score;
        set score 1; set Score 32768; set Score -32769; set Score 1.0; set GrowthToggle 2; set GameRunning 2; set GameMode 5;
        set GameMode -1; set CurrentPuzzle 0; set CurrentPuzzle 46; set HighScore 1; clear 1; beam 1 1 2 2 2 1;
        beam 1 1 2 2 0 1 1; beam 1 1 2 2 3 1 1; beam 1 1 2 2 2 4 1; beam 1 1 2 2 2 -1 1; beam 1 1 2 2 2 1 3;
        beam 1 1 2.5 2 2 1 1; beam 32768 1 2 2 2 1 1; puzzle; puzzle 0; puzzle 46; solution 0; solution 46; dump all;)",
        "click CmdAbout\n", [](int status, const std::string& printed, const std::string& error) {
            EXPECT_EQ(status, 2);
            EXPECT_TRUE(error.starts_with("error: line 6: ")) << error;
            EXPECT_EQ(error.find('\n'), error.size() - 1) << error;
            EXPECT_EQ(printed, "sound 7 sync\ndialog VAbout\n");
        });
}

TEST(Script, TheEndsOfTheRangesAreGood) {
    Try(kQuiet, R"(
        run 0; move -5 0.5; press 2 .5 -0.25; press 1 123456789012345678901234567890 0; key -32768; seed 0; seed 9223372036854775807; random 0 0.999999999999;
        fire TimerMulti 0; set Score -32768; set Level 32767; set GameMode 4; set CurrentPuzzle 45; answer x y z; click VScore;
        beam -32768 32767 -32768 32767 1 0 0; beam 0 0 0 0 2 3 2; click PictTut1; click LabelMulti; picture 8 2 1 1; puzzle 45;
        solution 1; run 5#comment;)",
        "\t \r\n#\n", [](int status, const std::string& printed, const std::string& error) {
            EXPECT_EQ(status, 0) << error;
            EXPECT_EQ(printed, "");
        });
}

TEST(Script, OnlyTheEnvironmentCanBeChangedWhileNoProgramRuns) {
    for (const std::string& start :
         {std::string(), kQuiet + std::string("key 27\n"), kQuiet + std::string("close\n")}) {
        const std::string wholeWorld =
            start + "setting A B C\nrandom 0\nseed 1\nanswer x\nmusic present\npaint off\nstore\n";
        Try(wholeWorld, R"(
            activate; move 1 1; press 1 1 1; dblclick; click CmdAbout; picture 1 1 1 1; key 27; minimise; restore; close;
            run 0; fire LineExtender; set Score 1; clear; beam 1 1 2 2 2 1 1; puzzle 1; solution 1; dump; elements; settings;)",
            "", [](int status, const std::string&, const std::string&) { EXPECT_EQ(status, 2); });
        Try(wholeWorld, "load;", "", [](int status, const std::string&, const std::string&) { EXPECT_EQ(status, 0); });
    }
}

TEST(Script, ARecordedGameSaysInWhichOfTheScriptsLinesItDiffers) {
    const std::string game =
        "paint off\nrecording 1\nprogram 1.1.0 # of the day\narcade\n\nseed 5\nat 90 click cmdPause\n";
    for (const auto& [script, error] : {std::pair{game, std::string()},
                                        {game + "dump\nat 95 press 1 1 1", ""},
                                        {game + "check 99 00000000\nat 100 press 1 1 1", "8: differs at 0.100 s"},
                                        {game + "dump\nat 89 restore", "9: out of range: 89"},
                                        {game + "dump\nend 99 left", "9: differs at 0.099 s"},
                                        {game + "close\nat 99 restore", "9: unknown command: at"},
                                        {game + "recording 1", "8: the program is running already"},
                                        {"recording 2\ndump", "1: this format needs a newer Prismfall than this one"},
                                        {"load\nat 5 restore", "2: unknown command: at"},
                                        {"recording 1\nprogram 1\npuzzle 3", "3: a number is missing"}}) {
        std::istringstream lines(script);
        std::ostringstream printed, errors;
        EXPECT_EQ(RunScript(lines, printed, errors), error.empty() ? 0 : 2) << script;
        EXPECT_EQ(errors.str(), error.empty() ? error : "error: line " + error + "\n") << script;
    }
}

TEST(Script, ASeedReproducesAllRandomnessOfAGame) {
    constexpr char kGame[] = "set GrowthToggle 0\nclick CommandArcade\nrun 20000\ndump\nkey 27\n";
    const auto beamsOfTwoGames = [&](const std::string& secondSeed) {
        std::istringstream script(std::string(kQuiet) + "seed 7\n" + kGame + "run 777\n" + secondSeed + kGame);
        std::ostringstream printed, errors;
        RunScript(script, printed, errors);
        const std::string all = printed.str();
        const std::size_t first = all.find("beam 1 ");
        const std::size_t second = all.rfind("beam 1 ");
        const auto beams = [&](std::size_t from) { return all.substr(from, all.find("dying", from) - from); };
        return std::pair(beams(first), beams(second));
    };
    const auto [first, again] = beamsOfTwoGames("seed 7\n");
    EXPECT_GT(std::ranges::count(first, '\n'), 5);
    EXPECT_EQ(first, again);
    EXPECT_NE(first, beamsOfTwoGames("").second);
}

TEST(HeadlessPlatform, AnOpenDialogIsNotShownAgain) {
    std::ostringstream printed;
    HeadlessPlatform machine(printed);
    Window dialog;
    dialog.name = "Dialog";
    dialog.Own({{.name = "again", .kind = ElementKind::Button}});
    dialog.on.elementClick = [&](Element&) { EXPECT_TRUE(machine.ShowModally(dialog)); };
    machine.QueueAnswer("again");
    EXPECT_FALSE(machine.ShowModally(dialog)) << "closed by its close box in the end";
    EXPECT_EQ(printed.str(), "dialog Dialog\n");
}

}  // namespace
}  // namespace prismfall
