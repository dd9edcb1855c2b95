// One step of one growing beam: whose turn it is, what it meets, and what that leads to.
#include "simulation/BeamStep.h"

#include <gtest/gtest.h>

#include "simulation/Playfield.h"
#include "tests/support/TestField.h"

namespace prismfall {
namespace {

// Mode and GrowthToggle, where 0 and 1 stand for both; the beams, of which the last takes the step; what becomes of
// them; what the step tells and sounds.
constexpr char kSteps[] = R"(
    arcade 1  | 300,53 310,63 red          | 300,53 310,63 red          |
    arcade 0  | 300,53 310,63 red          | 300,53 311,64 red          |
    arcade 01 | 300,54 310,64 red          | 309,63 311,65 red          |
    arcade 01 | 300,55 310,65 red          | 300,55 311,66 red          |
    puzzle 1  | 300,13 290,23 red          | 300,13 290,23 red          |
    puzzle 0  | 300,13 290,23 red          | 300,13 289,24 red          |
    puzzle 01 | 300,14 290,24 red          | 291,23 289,25 red          |
    puzzle 01 | 300,15 290,25 red stopped  | 300,15 290,25 red stopped  |
    puzzle 01 | 300,15 290,25 red waiting  | 300,15 290,25 red waiting  |
    puzzle 01 | 65,300 15,350 blue         | 65,300 14,351 blue         |
    puzzle 01 | 64,300 14,350 blue #3      | 64,300 13,351 blue stopped #3; 13,351 13,351 blue #3         | wall
    puzzle 01 | 618,300 668,350 blue       | 618,300 669,351 blue       |
    puzzle 01 | 619,300 669,350 blue       | 619,300 670,351 blue stopped; 670,351 670,351 blue left      | wall
    puzzle 01 | 100,500 184,584 blue       | 100,500 185,585 blue       |
    puzzle 01 | 100,500 185,585 blue       | 100,500 185,585 blue       | floor
    puzzle 01 | 9,584 14,589 blue; 34,565 14,585 blue | 9,584 14,589 blue; 34,565 13,586 blue stopped; 13,586 13,586 blue | wall
    puzzle 01 | 250,100 200,150 green stopped; 150,100 196,146 blue  | 250,100 200,150 green stopped; 150,100 196,146 blue stopped  | sound 1 async
    puzzle 01 | 250,100 200,150 blue stopped; 150,100 196,146 blue 0 | 250,100 200,150 blue stopped; 150,100 196,146 blue stopped 0 | sound 1 async
    puzzle 01 | 250,100 200,150 blue; 150,100 196,146 blue           | 250,100 200,150 blue stopped 4 dying; 150,100 196,146 blue stopped 4 dying | hit sound 4 sync
    replay 01 | 250,100 200,150 blue; 150,100 196,146 blue           | 250,100 200,150 blue stopped 4 dying; 150,100 196,146 blue stopped 4 dying | hit sound 4 sync
    arcade 01 | 250,100 200,150 blue; 150,100 196,146 blue           | 250,100 200,150 blue stopped 4 dying; 150,100 196,146 blue stopped 4 dying | hit sound 2 async
    arcade 01 | 250,100 200,150 blue 4 dying; 150,100 196,146 blue   | 250,100 200,150 blue 4 dying; 150,100 196,146 blue stopped 4 dying         | hit sound 2 async
    puzzle 01 | 250,100 200,150 blue; 50,50 55,55 red; 150,100 196,146 blue | 250,100 200,150 blue stopped 4 dying; 50,50 55,55 red; 150,100 196,146 blue stopped 4 dying | hit sound 2 async
)";

TEST(GrowLine, DoesWhatTheTableSays) {
    for (const auto& row : Rows(kSteps)) {
        for (const char toggle : row[0].substr(7)) {
            TestField field(ModeNamed(row[0].substr(0, 6)), row[1]);
            field.Main().GrowthToggle = toggle == '0' ? 0 : 1;
            std::int16_t hits = 0;
            const Growth growth = GrowLine(field.Main(), *field.Main().Lines.back(), hits);
            EXPECT_EQ(InShort(field.Main()), row[2]) << row[1];
            std::string told = growth == Growth::AtWall ? "wall" : growth == Growth::AtFloor ? "floor" : "";
            if (hits > 0) told += "hit ";
            EXPECT_EQ(told + field.TakePrinted(), row[3] + (row[3].find("sound") < 9 ? "\n" : "")) << row[1];
        }
    }
}

TEST(GrowLine, LeavesItsMarksForWhatFollows) {
    TestField field(kArcadeGame, "250,100 200,150 red stopped; 150,100 196,146 red");
    VMain& main = field.Main();
    main.MultiSumX = main.MultiSumY = 1000;
    std::int16_t hits = 5;
    GrowLine(main, field.Beam(2), hits);
    EXPECT_EQ(hits, 6);
    EXPECT_EQ(main.MultiSumX, 1196);
    EXPECT_EQ(main.MultiSumY, 1146);
    EXPECT_EQ(main.MultiColor, 2);
    EXPECT_EQ(main.MultiDirection, kRightwards);
    EXPECT_EQ(Places(main, main.DyingLines), "2 1");
    EXPECT_EQ(Places(main, field.Beam(1).StoppingLines), "2") << "also what dies";
}

TEST(GrowLine, ErasesTheSpotInTheEntryZoneOfAnArcadeGame) {
    for (const auto& [mode, y, isErased] :
         {std::tuple{kArcadeGame, 63, true}, {kArcadeGame, 64, false}, {kPuzzleGame, 63, false}}) {
        const std::string head = "110," + std::to_string(y);
        TestField field(mode, "100," + std::to_string(y - 10) + ' ' + head + " red");
        field.Main().CollisionLineY = 40;
        field.Main().GrowthToggle = 0;
        field.Machine().SetPainting(true);
        std::int16_t hits = 0;
        GrowLine(field.Main(), field.Beam(1), hits);
        const std::string painted = field.TakePrinted();
        EXPECT_EQ(painted.starts_with("line 100 53 110 63 0x000000 5\n"), isErased) << painted;
        EXPECT_NE(painted.find("line 110 " + std::to_string(y) + " 111"), std::string::npos) << painted;
    }
}

}  // namespace
}  // namespace prismfall
