// How beams thin out with their chains, and what is repaired and repainted.
#include "simulation/BeamRemoval.h"

#include <gtest/gtest.h>

#include "simulation/Playfield.h"
#include "tests/support/TestField.h"

namespace prismfall {
namespace {

void Link(CLine& a, CLine& b) {
    a.LinkedLines.push_back(&b);
    b.LinkedLines.push_back(&a);
}

TEST(DeleteLine, GoesThroughTheChainInOneColour) {
    TestField field(kArcadeGame,
                    "100,100 150,150 blue; 150,150 100,200 blue; 100,200 150,250 blue stopped fast; "
                    "150,250 100,300 green; 100,300 150,350 blue");
    VMain& main = field.Main();
    for (std::size_t beam = 1; beam < 5; ++beam) Link(field.Beam(beam), field.Beam(beam + 1));
    Link(field.Beam(3), field.Beam(1));  // and round in a ring
    main.Level = 3;
    field.Machine().SetPainting(true);
    DeleteLine(main, field.Beam(2), 4, true);
    EXPECT_EQ(InShort(main),
              "100,100 150,150 blue stopped 4 dying; 150,150 100,200 blue stopped 4 dying fast; "
              "100,200 150,250 blue stopped 4 dying; 150,250 100,300 green; 100,300 150,350 blue");
    EXPECT_EQ(field.TakePrinted(),
              "line 150 150 100 200 0x000000 5\nline 150 150 100 200 0xFF0000 4\n"
              "line 100 100 150 150 0x000000 5\nline 100 100 150 150 0xFF0000 4\n"
              "line 100 200 150 250 0x000000 5\nline 100 200 150 250 0xFF0000 4\n");
    EXPECT_EQ(field.Machine().Timers().Interval(Timer::LineExtender), 48) << "this is how a level reaches the timers";
    DeleteLine(main, field.Beam(2), 0, false);
    EXPECT_EQ(field.TakePrinted(),
              "line 150 150 100 200 0x000000 5\nline 100 100 150 150 0x000000 5\nline 100 200 150 250 0x000000 5\n");
}

TEST(DeleteLine, StandsAChainOfAHundredThousandBends) {
    TestField field(kPuzzleGame);
    VMain& main = field.Main();
    for (int bend = 0; bend < 100'000; ++bend) {
        main.Lines.push_back(&main.Beams.Make());
        if (bend > 0) Link(*main.Lines[main.Lines.size() - 2], *main.Lines.back());
    }
    DeleteLine(main, field.Beam(50'000), 4, false);
    EXPECT_TRUE(AllLinesDeleted(main));
}

TEST(RepairWalls, OneStripBesideTheFirstEndThatIsNear) {
    for (const auto& [beam, restored] : {std::pair{"121,300 21,400 red", ""},
                                         {"120,300 20,400 red", "restore 7 390 14 410\n"},
                                         {"20,300 120,400 red", "restore 7 290 14 310\n"},
                                         {"19,300 20,301 red", "restore 7 291 14 311\n"},
                                         {"563,300 663,400 red", ""},
                                         {"564,300 664,400 red", "restore 665 390 672 410\n"},
                                         {"664,300 564,400 red", "restore 665 290 672 310\n"},
                                         {"20,300 664,944 red", "restore 7 290 14 310\n"}}) {
        TestField field(kPuzzleGame, beam);
        field.Machine().SetPainting(true);
        RepairWalls(field.Main(), field.Beam(1));
        EXPECT_EQ(field.TakePrinted(), restored) << beam;
    }
}

TEST(RedrawLines, PaintsWhatBeginsBelowTheBlueLine) {
    for (const auto& [mode, beam, isPainted] : {std::tuple{kArcadeGame, "100,60 150,110 green", true},
                                                {kArcadeGame, "100,59 150,109 green", false},
                                                {kPuzzleGame, "100,20 150,70 green", true},
                                                {kPuzzleGame, "100,19 150,69 green", false},
                                                {kPuzzleGame, "100,90 150,140 green 1", true},
                                                {kPuzzleGame, "100,90 150,140 green 0", false}}) {
        TestField field(mode, beam);
        RedrawLines(field.Main());
        const Surface& surface = field.Machine().Painted();
        EXPECT_EQ(surface.PixelAt(110, field.Beam(1).YStart + 10) == 0xFF008000U, isPainted) << beam;
        EXPECT_EQ(surface.PixelAt(669, 60) == 0xFF0000FFU, mode == kArcadeGame) << "the blue line";
    }
}

}  // namespace
}  // namespace prismfall
