// What a player does to a beam: which one a press means, and how far a beam runs forward.
#include "simulation/BeamControl.h"

#include <gtest/gtest.h>

#include "tests/support/TestField.h"

namespace prismfall {
namespace {

TEST(FindNearestLine, TakesTheNearestHeadWithinReach) {
    TestField test("puzzle", "100,100 200,200 blue; 300,100 220,180 blue waiting; 100,300 200,400 blue stopped");
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
        EXPECT_EQ(Places(test.field, {FindNearestLine(test.field, c.x, c.y)}), c.found) << c.x << ',' << c.y;
    std::swap(test.field.Lines[0], test.field.Lines[1]);
    EXPECT_EQ(FindNearestLine(test.field, 210, 190), &test.Beam(1)) << "of two equally near, the first in Lines";
}

// The playfield; the beams, of which the last runs forward; the beams afterwards; the outcome; the dying beams.
constexpr char kRuns[] = R"(
    puzzle | 100,100 130,130 red | 100,100 585,585 red                             | at floor  |
    puzzle | 100,18 96,22 red    | 96,22 13,105 red stopped; 13,105 493,585 red    | at floor  |
    arcade | 100,59 104,63 red   | 103,62 626,585 red                              | at floor  |
    arcade | 100,60 104,64 red   | 100,60 625,585 red                              | at floor  |
    arcade | 300,120 60,360 blue stopped; 90,70 60,100 green | 300,120 60,360 blue stopped; 90,70 13,147 green stopped; 13,147 139,273 green stopped | stopped |
    puzzle | 350,250 250,350 blue stopped; 100,100 150,150 blue 0 | 350,250 250,350 blue stopped; 100,100 296,296 blue stopped 0 | stopped |
    arcade | 310,190 200,300 green 4 dying; 350,250 250,350 blue; 100,100 150,150 blue | 310,190 200,300 green 4 dying; 350,250 250,350 blue stopped 4 dying fast; 100,100 296,296 blue stopped 4 dying | destroyed | 3 2
)";

TEST(SpeedUpLine, RunsToTheEnd) {
    for (const auto& row : Rows(kRuns)) {
        TestField test(row[0], row[1]);
        Field& field = test.field;
        CLine& beam = *field.Lines.back();
        EXPECT_EQ(WouldEndAtBeam(field, beam), row[3] != "at floor") << row[1];
        EXPECT_EQ(InShort(field), row[1]) << "looking ahead changes nothing";
        EXPECT_TRUE(beam.LinkedLines.empty() && test.Beam(1).StoppingLines.empty());
        EXPECT_EQ(InWords(SpeedUpLine(field, beam)), row[3]) << row[1];
        EXPECT_EQ(InShort(field), row[2]);
        EXPECT_EQ(Places(field, field.DyingLines), row[4]);
    }
}

TEST(SpeedUpLine, LinksAndStopsWhatItHits) {
    TestField test("arcade", "300,120 60,360 blue stopped; 90,70 60,100 green");
    Field& field = test.field;
    SpeedUpLine(field, test.Beam(2));
    EXPECT_EQ(Places(field, test.Beam(1).StoppingLines), "3");
    EXPECT_EQ(Places(field, test.Beam(2).LinkedLines), "3");
    // A beam that hits its own chain thins it twice.
    TestField puzzle("puzzle", "340,200 200,340 blue stopped; 200,200 240,240 blue");
    puzzle.Beam(1).LinkedLines = {&puzzle.Beam(2)};
    puzzle.Beam(2).LinkedLines = {&puzzle.Beam(1)};
    SpeedUpLine(puzzle.field, puzzle.Beam(2));
    EXPECT_EQ(InShort(puzzle.field), "340,200 200,340 blue stopped 3 dying fast; 200,200 266,266 blue stopped 3 dying");
}

TEST(SpeedUpLine, PaintsWhereItRunsAndErasesInTheEntryZone) {
    TestField test("arcade", "300,100 200,200 red stopped; 180,30 190,40 red");
    test.painter.isPrinting = true;
    WouldEndAtBeam(test.field, test.Beam(2));
    std::string erased;
    for (int i = 0; i < 23; ++i)
        erased += "line 180 30 " + std::to_string(190 + i) + ' ' + std::to_string(40 + i) + " 0x000000 5\n";
    EXPECT_EQ(test.TakePrinted(), erased) << "even if it only looks ahead";
    SpeedUpLine(test.field, test.Beam(2));
    const std::string printed = test.TakePrinted();
    EXPECT_TRUE(printed.starts_with("line 180 30 190 40 0x000000 5\nline 190 40 191 41 0x0000FF 5\n")) << printed;
}

}  // namespace
}  // namespace prismfall
