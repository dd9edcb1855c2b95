// One step of one growing beam: whose turn it is, what it meets, and what that leads to.
#include "simulation/BeamStep.h"

#include <gtest/gtest.h>

#include "simulation/Playfield.h"
#include "tests/support/TestField.h"

namespace prismfall {
namespace {

struct StepCase {
    std::int32_t mode;
    const char* beams;  // the last one takes the step
    const char* after;
    std::int16_t hits = 0;
    const char* printed = "";
    Growth growth = Growth::GoesOn;
};

void Check(const StepCase& c, std::int16_t toggle) {
    TestField field(c.mode, c.beams);
    VMain& main = field.Main();
    main.GrowthToggle = toggle;
    std::int16_t hits = 0;
    EXPECT_EQ(GrowLine(main, *main.Lines.back(), hits), c.growth) << c.beams;
    EXPECT_EQ(InShort(main), c.after) << "toggle " << toggle;
    EXPECT_EQ(hits, c.hits) << c.beams;
    EXPECT_EQ(field.TakePrinted(), c.printed) << c.beams;
}

TEST(GrowLine, TakesEverySecondTurnInTheEntryZone) {
    for (const StepCase& c : {StepCase{kArcadeGame, "300,53 310,63 red", "300,53 310,63 red"},
                              {kArcadeGame, "300,54 310,64 red", "309,63 311,65 red"},
                              {kArcadeGame, "300,55 310,65 red", "300,55 311,66 red"},
                              {kPuzzleGame, "300,13 290,23 red", "300,13 290,23 red"},
                              {kPuzzleGame, "300,14 290,24 red", "291,23 289,25 red"},
                              {kPuzzleGame, "300,15 290,25 red stopped", "300,15 290,25 red stopped"},
                              {kPuzzleGame, "300,15 290,25 red waiting", "300,15 290,25 red waiting"}})
        Check(c, 1);
    for (const StepCase& c : {StepCase{kArcadeGame, "300,53 310,63 red", "300,53 311,64 red"},
                              {kArcadeGame, "300,54 310,64 red", "309,63 311,65 red"},
                              {kPuzzleGame, "300,13 290,23 red", "300,13 289,24 red"}})
        Check(c, 0);
}

TEST(GrowLine, MeetsWallsFloorAndBeams) {
    constexpr StepCase kCases[] = {
        {kPuzzleGame, "65,300 15,350 blue", "65,300 14,351 blue"},
        {kPuzzleGame, "64,300 14,350 blue #3", "64,300 13,351 blue stopped #3; 13,351 13,351 blue #3", 0, "",
         Growth::AtWall},
        {kPuzzleGame, "618,300 668,350 blue", "618,300 669,351 blue"},
        {kPuzzleGame, "619,300 669,350 blue", "619,300 670,351 blue stopped; 670,351 670,351 blue left", 0, "",
         Growth::AtWall},
        {kPuzzleGame, "100,500 184,584 blue", "100,500 185,585 blue"},
        {kPuzzleGame, "100,500 185,585 blue", "100,500 185,585 blue", 0, "", Growth::AtFloor},
        // A wall comes before the floor, and before a beam.
        {kPuzzleGame, "10,585 14,589 blue stopped; 34,565 14,585 blue",
         "10,585 14,589 blue stopped; 34,565 13,586 blue stopped; 13,586 13,586 blue", 0, "", Growth::AtWall},
        {kPuzzleGame, "250,100 200,150 green stopped; 150,100 196,146 blue",
         "250,100 200,150 green stopped; 150,100 196,146 blue stopped", 0, "sound 1 async\n"},
        {kPuzzleGame, "250,100 200,150 blue stopped; 150,100 196,146 blue 0",
         "250,100 200,150 blue stopped; 150,100 196,146 blue stopped 0", 0, "sound 1 async\n"},
        // The last two of a puzzle, of a replay, of an Arcade game; and not the last.
        {kPuzzleGame, "250,100 200,150 blue stopped; 150,100 196,146 blue",
         "250,100 200,150 blue stopped 4 dying; 150,100 196,146 blue stopped 4 dying", 1, "sound 4 sync\n"},
        {kSolutionReplay, "250,100 200,150 blue stopped; 150,100 196,146 blue",
         "250,100 200,150 blue stopped 4 dying; 150,100 196,146 blue stopped 4 dying", 1, "sound 4 sync\n"},
        {kArcadeGame, "250,100 200,150 blue stopped; 150,100 196,146 blue",
         "250,100 200,150 blue stopped 4 dying; 150,100 196,146 blue stopped 4 dying", 1, "sound 2 async\n"},
        {kPuzzleGame, "250,100 200,150 blue stopped; 500,500 510,510 blue; 150,100 196,146 blue",
         "250,100 200,150 blue stopped 4 dying; 500,500 510,510 blue; 150,100 196,146 blue stopped 4 dying", 1,
         "sound 2 async\n"},
        // One that is dying already is not thinned again.
        {kArcadeGame, "250,100 200,150 blue stopped 4 dying; 150,100 196,146 blue",
         "250,100 200,150 blue stopped 4 dying; 150,100 196,146 blue stopped 4 dying", 1, "sound 2 async\n"},
    };
    for (const StepCase& c : kCases)
        for (const std::int16_t toggle : {std::int16_t{0}, std::int16_t{1}}) Check(c, toggle);
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
    for (const std::int32_t mode : {kArcadeGame, kPuzzleGame}) {
        TestField field(mode, "100,30 110,40 red");
        field.Main().CollisionLineY = 40;
        field.Main().GrowthToggle = 0;
        field.Machine().SetPainting(true);
        std::int16_t hits = 0;
        GrowLine(field.Main(), field.Beam(1), hits);
        EXPECT_EQ(field.TakePrinted(), std::string(mode == kArcadeGame ? "line 100 30 110 40 0x000000 5\n" : "") +
                                           "line 110 40 111 41 0x0000FF 5\nline 110 38 113 41 0xC0C0A0 1\n"
                                           "line 108 40 111 43 0x0000C0 1\n");
    }
}

}  // namespace
}  // namespace prismfall
