// How beams thin out along their chains, and what is repaired and repainted.
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
    TestField test("arcade",
                   "100,100 150,150 blue; 150,150 100,200 blue; 100,200 150,250 blue stopped fast; "
                   "150,250 100,300 green; 100,300 150,350 blue");
    Field& field = test.field;
    for (std::size_t beam = 1; beam < 5; ++beam) Link(test.Beam(beam), test.Beam(beam + 1));
    Link(test.Beam(3), test.Beam(1));  // and back around, as a ring
    test.painter.isPrinting = true;
    DeleteLine(field, test.Beam(2), 4, true);
    EXPECT_EQ(InShort(field),
              "100,100 150,150 blue stopped 4 dying; 150,150 100,200 blue stopped 4 dying fast; "
              "100,200 150,250 blue stopped 4 dying; 150,250 100,300 green; 100,300 150,350 blue");
    EXPECT_EQ(test.TakePrinted(),
              "line 150 150 100 200 0x000000 5\nline 150 150 100 200 0xFF0000 4\n"
              "line 100 100 150 150 0x000000 5\nline 100 100 150 150 0xFF0000 4\n"
              "line 100 200 150 250 0x000000 5\nline 100 200 150 250 0xFF0000 4\n");
    DeleteLine(field, test.Beam(2), 0, false);
    EXPECT_EQ(test.TakePrinted(),
              "line 150 150 100 200 0x000000 5\nline 100 100 150 150 0x000000 5\nline 100 200 150 250 0x000000 5\n");
}

TEST(DeleteLine, SurvivesAChainOfAHundredThousandBends) {
    TestField test("puzzle");
    Field& field = test.field;
    for (int bend = 0; bend < 100'000; ++bend) {
        field.Lines.push_back(&field.Beams.Make());
        if (bend > 0) Link(*field.Lines[field.Lines.size() - 2], *field.Lines.back());
    }
    DeleteLine(field, test.Beam(50'000), 4, false);
    EXPECT_TRUE(AllLinesDeleted(field));
}

TEST(RepairWalls, OneStripNextToTheFirstEndNearby) {
    for (const auto& [beam, restored] : {std::pair{"121,300 21,400 red", ""},
                                         {"120,300 20,400 red", "restore 7 390 14 410\n"},
                                         {"20,300 120,400 red", "restore 7 290 14 310\n"},
                                         {"19,300 20,301 red", "restore 7 291 14 311\n"},
                                         {"563,300 663,400 red", ""},
                                         {"564,300 664,400 red", "restore 665 390 672 410\n"},
                                         {"664,300 564,400 red", "restore 665 290 672 310\n"},
                                         {"20,300 664,944 red", "restore 7 290 14 310\n"}}) {
        TestField test("puzzle", beam);
        test.painter.isPrinting = true;
        RepairWalls(test.painter, test.Beam(1));
        EXPECT_EQ(test.TakePrinted(), restored) << beam;
    }
}

TEST(RedrawLines, PaintsWhatBeginsBelowTheBlueLine) {
    for (const auto& [mode, beam, isPainted] : {std::tuple{"arcade", "100,60 150,110 green", true},
                                                {"arcade", "100,59 150,109 green", false},
                                                {"puzzle", "100,20 150,70 green", true},
                                                {"puzzle", "100,19 150,69 green", false},
                                                {"puzzle", "100,90 150,140 green 1", true},
                                                {"puzzle", "100,90 150,140 green 0", false}}) {
        TestField test(mode, beam);
        RedrawLines(test.field);
        const Surface& surface = test.painter.surface;
        EXPECT_EQ(surface.PixelAt(110, test.Beam(1).YStart + 10) == 0xFF008000U, isPainted) << beam;
        EXPECT_EQ(surface.PixelAt(669, 60) == 0xFF0000FFU, mode == std::string("arcade")) << "the blue line";
    }
}

}  // namespace
}  // namespace prismfall
