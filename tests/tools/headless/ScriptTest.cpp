// What a script may say and what is done with it: words, ranges, the commands that a wrong state refuses, and the
// meanings that the stories do not reach.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "backends/headless/PrintFormat.h"
#include "tools/headless/HeadlessDriver.h"
#include "tools/headless/ScriptWords.h"

namespace prismfall {
namespace {

constexpr std::string_view kQuiet = "setting General PlayFirstTime False\nsetting General Music False\nload\n";

struct Outcome {
    int status;
    std::string printed;
    std::string error;
};

Outcome RunText(const std::string& text) {
    std::istringstream script(text);
    std::ostringstream printed;
    std::ostringstream errors;
    const int status = RunScript(script, printed, errors);
    return {status, printed.str(), errors.str()};
}

// The commands of a list with "; " between them.
std::vector<std::string> Split(std::string_view list) {
    std::vector<std::string> commands;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find("; "), list.size());
        commands.emplace_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 2, list.size()));
    }
    return commands;
}

// What a script prints behind a quiet start.
std::string Printed(const std::string& text) {
    const Outcome outcome = RunText(std::string(kQuiet) + text);
    EXPECT_EQ(outcome.error, "");
    return outcome.printed;
}

std::size_t Count(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

// The lines that begin with `start`.
std::string Lines(const std::string& text, std::string_view start) {
    std::istringstream all(text);
    std::string chosen;
    for (std::string line; std::getline(all, line);)
        if (line.starts_with(start)) chosen += line + '\n';
    return chosen;
}

std::string Time(const std::string& printed) {
    const std::size_t at = printed.rfind("time=") + 5;
    return printed.substr(at, printed.find('\n', at) - at);
}

TEST(Script, WordsEndAtBlanksAndComments) {
    EXPECT_EQ(SplitWords("  run\t 75 \r"), (Words{"run", "75"}));
    EXPECT_EQ(SplitWords("run 75#comment # more"), (Words{"run", "75"}));
    for (const char* nothing : {"", " \t\r", "# run 75", "#"}) EXPECT_TRUE(SplitWords(nothing).empty()) << nothing;
}

TEST(Script, ABadLineEndsTheRunAndSaysWhich) {
    constexpr std::string_view kBad =
        "jump; Load; load; run; run -1; run 1.5; run 75 75; run 0x10; run +5; run 99999999999; activate 1; "
        "move 1; move 1 x; press 0 1 1; press 3 1 1; press 1 1; press 1 1e2 1; press 1 nan 1; press 1 inf 1; "
        "press 1 1 1 1; click; click cmdStart; click LabelSolved9; click PuzzleUp; picture 0 1 1 1; "
        "picture 9 1 1 1; picture 1 3 1 1; picture 1 1 1; key; key Esc; key 32768; setting General Music; "
        "setting General Music True True; random; random 1; random -0.1; random 0.5 x; music; music on; paint; "
        "paint yes; answer; fire; fire Timer; fire LineExtender -1; fire LineExtender 1 1; set Score; "
        "set score 1; set Score 32768; set Score -32769; set Score 1.0; set GrowthToggle 2; set GameRunning 2; "
        "set GameMode 5; set GameMode -1; set CurrentPuzzle 0; set CurrentPuzzle 46; set HighScore 1; clear 1; "
        "beam 1 1 2 2 2 1; beam 1 1 2 2 0 1 1; beam 1 1 2 2 3 1 1; beam 1 1 2 2 2 4 1; beam 1 1 2 2 2 -1 1; "
        "beam 1 1 2 2 2 1 3; beam 1 1 2.5 2 2 1 1; beam 32768 1 2 2 2 1 1; puzzle; puzzle 0; puzzle 46; "
        "solution 0; solution 46; dump all";
    for (const std::string& line : Split(kBad)) {
        const Outcome outcome = RunText(std::string(kQuiet) + "click CmdAbout\n\n" + line + "\nclick CmdAbout\n");
        EXPECT_EQ(outcome.status, 2) << line;
        EXPECT_EQ(outcome.error.find("error: line 6: "), 0U) << line << ": " << outcome.error;
        EXPECT_EQ(Count(outcome.error, "\n"), 1U) << line;
        EXPECT_EQ(outcome.printed, "sound 7 sync\ndialog VAbout\n") << line;
    }
}

TEST(Script, TheEndsOfTheRangesAreGood) {
    constexpr std::string_view kGood =
        "run 0; move -5 0.5; press 2 .5 -0.25; press 1 123456789012345678901234567890 0; key -32768; "
        "random 0 0.999999999999; fire TimerMulti 0; set Score -32768; set Level 32767; set GameMode 4; "
        "set CurrentPuzzle 45; beam -32768 32767 -32768 32767 1 0 0; beam 0 0 0 0 2 3 2; answer x y z; "
        "click VScore; click PictTut1; click LabelMulti; picture 8 2 1 1; puzzle 45; solution 1";
    for (const std::string& line : Split(kGood)) {
        const Outcome outcome = RunText(std::string(kQuiet) + line + "\n");
        EXPECT_EQ(outcome.status, 0) << line << ": " << outcome.error;
        EXPECT_EQ(outcome.printed, "") << line;
    }
}

TEST(Script, OnlyTheWorldCanBeChangedWhileNoProgramRuns) {
    const std::string starts[] = {"", std::string(kQuiet) + "key 27\n", std::string(kQuiet) + "close\n"};
    constexpr std::string_view kRefused =
        "activate; move 1 1; press 1 1 1; dblclick; click CmdAbout; picture 1 1 1 1; key 27; minimise; restore; "
        "close; run 0; fire LineExtender; set Score 1; clear; beam 1 1 2 2 2 1 1; puzzle 1; solution 1; dump; "
        "elements; settings";
    for (const std::string& start : starts) {
        for (const std::string& line : Split(kRefused)) EXPECT_EQ(RunText(start + line).status, 2) << start << line;
        EXPECT_EQ(RunText(start + "setting A B C\nrandom 0\nanswer x\nmusic present\npaint off\nstore\nload\n").status,
                  0);
    }
}

TEST(Script, RunFixesItsEndOnce) {
    EXPECT_EQ(Time(Printed("run 4999\nsettings\n")), "4999");
    EXPECT_EQ(Time(Printed("run 5000\nsettings\n")), "5001") << "the flicker yields beyond the end";
    EXPECT_EQ(Time(Printed("run 5001\nsettings\n")), "5001") << "what handlers yield counts";
    const std::string lost = "puzzle 18\nclick CmdStart\nclear\nbeam 100 500 185 585 2 1 1\n";
    EXPECT_EQ(Time(Printed(lost + "run 75\nsettings\n")), "366") << "one yield, then 29 bands of 10 ms";
    EXPECT_EQ(Time(Printed(lost + "run 1000\nsettings\n")), "1000");
}

TEST(Script, AFiredHandlerCountsAsRunningAndLeavesTheDueTime) {
    const std::string atOneMillisecond = "random 0.001 0.0001 0.9\nrun 5000\n";  // lit; due again at 5001
    EXPECT_EQ(Count(Printed(atOneMillisecond + "fire TimerA\n"), "sound 6"), 2U) << "not from within its own yield";
    EXPECT_EQ(Count(Printed(atOneMillisecond + "fire TimerA\nrun 0\n"), "sound 6"), 3U) << "but due all the same";
    EXPECT_EQ(Printed("fire TimerA 0\nfire LineExtender\n"), "") << "a timer that is off can be fired";
    const std::string arcade = "click CommandArcade\nrun 74\nfire LineExtender\n";
    EXPECT_EQ(Printed(arcade + "run 1\nset Level 1\ndump\n"),
              Printed("click CommandArcade\nfire LineExtender\nrun 75\ndump\n"));
}

TEST(Script, AnswersThatCannotBeClickedAreDropped) {
    const std::string solved =
        "puzzle 45\nclick CmdStart\nclear\nbeam 100 100 150 150 2 1 1\nbeam 220 100 170 150 1 1 1\n";
    EXPECT_EQ(Printed(solved + "answer Nobody ImageMessage CommandSolution CommandNext\nrun 2000\n"),
              "sound 7 sync\nsound 4 sync\ndialog VPuzzleResult solved\n");
    EXPECT_EQ(Printed("answer Label1 Command1 Command1\nclick CmdAbout\nclick CmdOptions\nclick CmdAbout\n"),
              "sound 7 sync\ndialog VAbout\nsound 7 sync\nsound 7 sync\ndialog VOptions\nsound 7 sync\n"
              "sound 7 sync\ndialog VAbout\n")
        << "a name that is left over waits for the next dialog";
}

TEST(Script, ANewLoadGoesOnInTheSameWorld) {
    const std::string twoGames[] = {"click CommandArcade\nkey 27\nclick CommandArcade\ndump\n",
                                    "click CommandArcade\nclose\nload\nclick CommandArcade\ndump\n"};
    EXPECT_EQ(Lines(Printed(twoGames[0]), "beam"), Lines(Printed(twoGames[1]), "beam")) << "the generator goes on";
    EXPECT_NE(Lines(Printed(twoGames[0]), "beam"), Lines(Printed("click CommandArcade\ndump\n"), "beam"));

    const std::string again = Printed(
        "run 1234\nset Score 9\nset Level 5\nclick CommandPuzzle\nclick CommandNext\n"
        "random 0.99 0.4 0.9\nanswer Command1\nmusic missing\npaint on\nclose\nload\n"
        "settings\ndump\nclick CmdAbout\nclick CommandArcade\ndump\n");
    EXPECT_NE(again.find("clear\nsettings start=1 gamestart=0 music=0 effects=1 first=0 time=1234\n"),
              std::string::npos)
        << again;
    EXPECT_EQ(Lines(again, "state").find("state mode=0 running=0 waiting=0 puzzle=1 page=1 level=1 count=0 score=0"),
              0U);
    EXPECT_NE(again.find("dialog VAbout\nsound 7 sync\n"), std::string::npos) << "the answer has waited";
    EXPECT_EQ(Lines(again, "beam 1 "),
              "beam 1 641,20 641,20 dir=2 color=3 mode=1 thick=5 deleted=0 fast=0 nr=0 links=- stops=-\n");
    EXPECT_EQ(
        Lines(Printed("run 2000\nclose\nload\nrun 4999\nclick CommandArcade\nclose\nload\nrun 4999\n"), "sound 6"), "")
        << "no timer of the old run goes on";
}

TEST(Script, SetAndFireChangeNothingElse) {
    const std::string set =
        Printed("click CommandArcade\nset Level 9\nset Score 50\nset StartLevel 3\ndump\nelements\n");
    EXPECT_NE(set.find("level=9 count=0 score=50 high=0"), std::string::npos);
    EXPECT_NE(set.find("LineExtender=on:75"), std::string::npos);
    EXPECT_NE(set.find("VScore text=\"0\""), std::string::npos);
    EXPECT_NE(set.find("VLevel text=\"1\""), std::string::npos);
    EXPECT_EQ(Printed("picture 1 1 40 90\nset GameMode 2\nclick CmdStart\n"), "") << "what is hidden takes no press";
}

TEST(Script, PaintingPrintsEveryStroke) {
    EXPECT_EQ(Printed("set GameMode 2\nbeam 100 100 150 150 2 1 1\npaint on\nfire LineExtender\n"),
              "line 150 150 151 151 0x008000 5\nline 150 148 153 151 0x00FF00 1\nline 148 150 151 153 0x000400 1\n");
    EXPECT_EQ(Printed("set GameMode 3\nset GameRunning 1\nset CollisionLineY 40\nbeam 20 30 20 30 2 1 1\npaint on\n"
                      "press 1 20 30\npaint off\npress 1 20 30\n"),
              "line 20 30 20 30 0x000000 5\nrestore 7 20 14 40\n");
    const std::string end = Printed(
        "set GameMode 2\nbeam 100 500 185 585 2 1 1\nbeam 300 500 215 585 1 2 0\npaint on\nfire LineExtender\n");
    EXPECT_EQ(end.find("sound 5 sync\nline 166 566 185 585 grey1 5\nline 166 564 187 585 grey2 1\n"
                       "line 164 566 185 587 grey3 1\nline 234 566 215 585 grey1 5\nline 234 564 213 585 grey2 1\n"
                       "line 236 566 215 587 grey3 1\nline 146 546 166 566 grey1 5\n"),
              0U)
        << end;
    EXPECT_NE(end.find("line 100 500 106 506 grey1 5\n"), std::string::npos) << "cut off at the tail";
}

TEST(Script, ADumpShowsGoneBeamsAsZero) {
    // Green stops at blue, is struck by green, and both go: blue still holds the one that it had stopped.
    const std::string dump = Printed(
        "set GameMode 2\nset GameRunning 1\nset CurrentPuzzle 2\n"
        "beam 200 100 300 200 2 0 0\nbeam 280 120 270 130 1 1 1\nbeam 230 90 240 100 2 1 1\n"
        "fire LineExtender 30\ndump\nfire LineDeleter 4\ndump\n");
    EXPECT_EQ(Lines(dump, "beam 1 "),
              "beam 1 200,100 300,200 dir=2 color=0 mode=0 thick=5 deleted=0 fast=0 nr=0 links=- stops=2\n"
              "beam 1 200,100 300,200 dir=2 color=0 mode=0 thick=5 deleted=0 fast=0 nr=0 links=- stops=0\n");
    EXPECT_EQ(Lines(dump, "dying"), "dying 3 2\ndying -\n");
}

TEST(Script, NumbersAndColoursPrintInOneWay) {
    EXPECT_EQ(ShortNumber(149.3F), "149.3");
    EXPECT_EQ(ShortNumber(95), "95");
    EXPECT_EQ(ShortNumber(700.0F / 3), "233.333");
    EXPECT_EQ(ShortNumber(-0.5), "-0.5");
    EXPECT_EQ(ColourName(0xFF0000), "0xFF0000");
    EXPECT_EQ(ColourName(0), "0x000000");
    EXPECT_EQ(ColourName(0x808080) + ColourName(0xC0C0C0) + ColourName(0xA0A0A0), "grey1grey2grey3");
}

TEST(Script, TheStoreIsSortedAsText) {
    EXPECT_EQ(
        RunText("setting B x 1\nsetting A y 2\nsetting A Y 3\nsetting B x10 4\nsetting B x2 5\nsetting B x 6\nstore\n")
            .printed,
        "A Y 3\nA y 2\nB x 6\nB x10 4\nB x2 5\n");
}

}  // namespace
}  // namespace prismfall
