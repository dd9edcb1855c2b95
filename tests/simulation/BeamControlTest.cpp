// What a player's hand does to a beam: which one it means, and how far a speeded beam runs.
#include "simulation/BeamControl.h"

#include <gtest/gtest.h>

#include "tests/support/TestField.h"

namespace prismfall {
namespace {

TEST(FindNearestLine, TakesTheNearestHeadWithinReach) {
    TestField field(kPuzzleGame, "100,100 200,200 blue; 300,100 220,180 blue waiting; 100,300 200,400 blue stopped");
    struct Case {
        std::int16_t x, y;
        const char* found;
    };
    for (const Case& c : {Case{200, 200, "1"},
                          {170, 240, "0"},
                          {165, 235, "1"},
                          {210, 190, "1"},
                          {211, 190, "2"},
                          {200, 400, "0"},
                          {200, 249, "1"},
                          {200, 250, "0"},
                          {-32768, 32767, "0"},
                          {32767, -32768, "0"}})
        EXPECT_EQ(Places(field.Main(), {FindNearestLine(field.Main(), c.x, c.y)}), c.found) << c.x << ',' << c.y;
    std::swap(field.Main().Lines[0], field.Main().Lines[1]);
    EXPECT_EQ(FindNearestLine(field.Main(), 210, 190), &field.Beam(1)) << "of two as near the first in Lines";
}

// Mode; the beams, of which the last is speeded up; what becomes of them; the sound if it ends at a beam; who is dying.
constexpr char kRuns[] = R"(
    puzzle | 100,100 130,130 red | 100,100 585,585 red                             |               |
    puzzle | 100,18 96,22 red    | 96,22 13,105 red stopped; 13,105 493,585 red    |               |
    arcade | 100,59 104,63 red   | 103,62 626,585 red                              |               |
    arcade | 100,60 104,64 red   | 100,60 625,585 red                              |               |
    arcade | 300,120 60,360 blue stopped; 90,70 60,100 green | 300,120 60,360 blue stopped; 90,70 13,147 green stopped; 13,147 139,273 green stopped | sound 1 async |
    puzzle | 350,250 250,350 blue stopped; 100,100 150,150 blue 0 | 350,250 250,350 blue stopped; 100,100 296,296 blue stopped 0 | sound 1 async |
    arcade | 310,190 200,300 green 4 dying; 350,250 250,350 blue; 100,100 150,150 blue | 310,190 200,300 green 4 dying; 350,250 250,350 blue stopped 4 dying fast; 100,100 296,296 blue stopped 4 dying | sound 2 async | 3 2
    puzzle | 350,250 250,350 blue; 100,100 150,150 blue | 350,250 250,350 blue stopped 4 dying fast; 100,100 296,296 blue stopped 4 dying | sound 4 async | 2 1
    replay | 350,250 250,350 blue; 100,100 150,150 blue | 350,250 250,350 blue stopped 4 dying fast; 100,100 296,296 blue stopped 4 dying | sound 4 async | 2 1
    puzzle | 500,500 510,510 red; 350,250 250,350 blue; 100,100 150,150 blue | 500,500 510,510 red; 350,250 250,350 blue stopped 4 dying fast; 100,100 296,296 blue stopped 4 dying | sound 2 async | 3 2
)";

TEST(SpeedUpLine, RunsToTheEnd) {
    for (const auto& row : Rows(kRuns)) {
        TestField field(ModeNamed(row[0]), row[1]);
        VMain& main = field.Main();
        CLine& beam = *main.Lines.back();
        EXPECT_EQ(SpeedUpLine(main, beam, true), !row[3].empty()) << row[1];
        EXPECT_EQ(InShort(main), row[1]) << "looking ahead changes nothing";
        EXPECT_TRUE(beam.LinkedLines.empty() && field.Beam(1).StoppingLines.empty());
        EXPECT_EQ(SpeedUpLine(main, beam, false), !row[3].empty()) << row[1];
        EXPECT_EQ(InShort(main), row[2]);
        EXPECT_EQ(field.TakePrinted(), row[3] + (row[3].empty() ? "" : "\n")) << row[1];
        EXPECT_EQ(Places(main, main.DyingLines), row[4]);
        EXPECT_EQ(main.Score, row[0] == "arcade" && !row[4].empty() ? 10 : 0);
    }
}

TEST(SpeedUpLine, LinksAndStopsWhatItMeets) {
    TestField field(kArcadeGame, "300,120 60,360 blue stopped; 90,70 60,100 green");
    VMain& main = field.Main();
    SpeedUpLine(main, field.Beam(2), false);
    EXPECT_EQ(Places(main, field.Beam(1).StoppingLines), "3");
    EXPECT_EQ(Places(main, field.Beam(2).LinkedLines), "3");
    // A beam that meets its own chain thins it twice.
    TestField puzzle(kPuzzleGame, "340,200 200,340 blue stopped; 200,200 240,240 blue");
    puzzle.Beam(1).LinkedLines = {&puzzle.Beam(2)};
    puzzle.Beam(2).LinkedLines = {&puzzle.Beam(1)};
    SpeedUpLine(puzzle.Main(), puzzle.Beam(2), false);
    EXPECT_EQ(InShort(puzzle.Main()),
              "340,200 200,340 blue stopped 3 dying fast; 200,200 266,266 blue stopped 3 dying");
}

TEST(SpeedUpLine, PaintsWhereItRunsAndErasesInTheEntryZone) {
    TestField field(kArcadeGame, "300,100 200,200 red stopped; 180,30 190,40 red");
    field.Machine().SetPainting(true);
    SpeedUpLine(field.Main(), field.Beam(2), true);
    std::string erased;
    for (int i = 0; i < 23; ++i)
        erased += "line 180 30 " + std::to_string(190 + i) + ' ' + std::to_string(40 + i) + " 0x000000 5\n";
    EXPECT_EQ(field.TakePrinted(), erased) << "even if it only looks ahead";
    SpeedUpLine(field.Main(), field.Beam(2), false);
    const std::string printed = field.TakePrinted();
    EXPECT_TRUE(printed.starts_with("line 180 30 190 40 0x000000 5\nline 190 40 191 41 0x0000FF 5\n")) << printed;
    EXPECT_TRUE(printed.ends_with("sound 2 async\nline 14 60 670 60 0xFF0000 1\n")) << printed;
}

}  // namespace
}  // namespace prismfall
