// One step of one growing beam: whose turn it is, what it hits, and what follows.
#include "simulation/BeamStep.h"

#include <gtest/gtest.h>

#include "simulation/Playfield.h"
#include "tests/support/TestField.h"

namespace prismfall {
namespace {

// Mode and GrowthToggle, or both values; the beams, of which the last takes the step; the beams afterwards; the outcome
// of the step.
constexpr char kSteps[] = R"(
    arcade 1  | 300,53 310,63 red          | 300,53 310,63 red          | continues
    arcade 0  | 300,53 310,63 red          | 300,53 311,64 red          | continues
    arcade 01 | 300,54 310,64 red          | 309,63 311,65 red          | continues
    arcade 01 | 300,55 310,65 red          | 300,55 311,66 red          | continues
    puzzle 1  | 300,13 290,23 red          | 300,13 290,23 red          | continues
    puzzle 0  | 300,13 290,23 red          | 300,13 289,24 red          | continues
    puzzle 01 | 300,14 290,24 red          | 291,23 289,25 red          | continues
    puzzle 01 | 300,15 290,25 red stopped  | 300,15 290,25 red stopped  | continues
    puzzle 01 | 300,15 290,25 red waiting  | 300,15 290,25 red waiting  | continues
    puzzle 01 | 65,300 15,350 blue         | 65,300 14,351 blue         | continues
    puzzle 01 | 64,300 14,350 blue #3      | 64,300 13,351 blue stopped #3; 13,351 13,351 blue #3         | bounced
    puzzle 01 | 618,300 668,350 blue       | 618,300 669,351 blue       | continues
    puzzle 01 | 619,300 669,350 blue       | 619,300 670,351 blue stopped; 670,351 670,351 blue left      | bounced
    puzzle 01 | 100,500 184,584 blue       | 100,500 185,585 blue       | continues
    puzzle 01 | 100,500 185,585 blue       | 100,500 185,585 blue       | at floor
    puzzle 01 | 9,584 14,589 blue; 34,565 14,585 blue | 9,584 14,589 blue; 34,565 13,586 blue stopped; 13,586 13,586 blue | bounced
    puzzle 01 | 250,100 200,150 green stopped; 150,100 196,146 blue  | 250,100 200,150 green stopped; 150,100 196,146 blue stopped  | stopped
    puzzle 01 | 250,100 200,150 blue stopped; 150,100 196,146 blue 0 | 250,100 200,150 blue stopped; 150,100 196,146 blue stopped 0 | stopped
    puzzle 01 | 250,100 200,150 blue; 150,100 196,146 blue           | 250,100 200,150 blue stopped 4 dying; 150,100 196,146 blue stopped 4 dying | destroyed
    arcade 01 | 250,100 200,150 blue; 150,100 196,146 blue           | 250,100 200,150 blue stopped 4 dying; 150,100 196,146 blue stopped 4 dying | destroyed
    arcade 01 | 250,100 200,150 blue 4 dying; 150,100 196,146 blue   | 250,100 200,150 blue 4 dying; 150,100 196,146 blue stopped 4 dying         | destroyed
    puzzle 01 | 250,100 200,150 blue; 50,50 55,55 red; 150,100 196,146 blue | 250,100 200,150 blue stopped 4 dying; 50,50 55,55 red; 150,100 196,146 blue stopped 4 dying | destroyed
)";

TEST(GrowLine, DoesWhatTheTableSays) {
    for (const auto& row : Rows(kSteps)) {
        for (const char toggle : row[0].substr(7)) {
            TestField test(row[0].substr(0, 6), row[1]);
            test.field.GrowthToggle = toggle == '0' ? 0 : 1;
            EXPECT_EQ(InWords(GrowLine(test.field, *test.field.Lines.back())), row[3]) << row[1];
            EXPECT_EQ(InShort(test.field), row[2]) << row[1];
        }
    }
}

TEST(GrowLine, ErasesTheSpotInTheEntryZoneOfAnArcadeGame) {
    for (const auto& [mode, y, isErased] :
         {std::tuple{"arcade", 63, true}, {"arcade", 64, false}, {"puzzle", 63, false}}) {
        const std::string head = "110," + std::to_string(y);
        TestField test(mode, "100," + std::to_string(y - 10) + ' ' + head + " red");
        test.field.CollisionLineY = 40;
        test.field.GrowthToggle = 0;
        test.painter.isPrinting = true;
        GrowLine(test.field, test.Beam(1));
        const std::string painted = test.TakePrinted();
        EXPECT_EQ(painted.starts_with("line 100 53 110 63 0x000000 5\n"), isErased) << painted;
        EXPECT_NE(painted.find("line 110 " + std::to_string(y) + " 111"), std::string::npos) << painted;
    }
}

}  // namespace
}  // namespace prismfall
