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
        EXPECT_EQ(outcome.error.find('\n'), outcome.error.size() - 1) << line;
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

TEST(Script, NumbersAndColoursPrintInOneWay) {
    EXPECT_EQ(ShortNumber(149.3F), "149.3");
    EXPECT_EQ(ShortNumber(95), "95");
    EXPECT_EQ(ShortNumber(700.0F / 3), "233.333");
    EXPECT_EQ(ShortNumber(-0.5), "-0.5");
    EXPECT_EQ(ColourName(0xFF0000), "0xFF0000");
    EXPECT_EQ(ColourName(0), "0x000000");
    EXPECT_EQ(ColourName(0x808080) + ColourName(0xC0C0C0) + ColourName(0xA0A0A0), "grey1grey2grey3");
}

}  // namespace
}  // namespace prismfall
