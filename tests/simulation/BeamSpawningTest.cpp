// How beams come into play.
#include "simulation/BeamSpawning.h"

#include <gtest/gtest.h>

#include "tests/support/TestField.h"

namespace prismfall {
namespace {

CLine* Spawn(TestField& test, std::initializer_list<double> numbers) {
    test.dice.numbers = numbers;
    return CreateLine(test.field, 20);
}

TEST(CreateLine, ARandomBeamByItsNumbers) {
    for (const auto& [column, direction, colour, expected] : {std::tuple{0.0, 0.0, 0.0, "21,20 21,20 blue"},
                                                              {19.999 / 642, 0.5, 0.2499, "21,20 21,20 blue"},
                                                              {20.001 / 642, 0.50001, 0.25, "41,20 41,20 green left"},
                                                              {0.5, 0.99, 0.4999, "341,20 341,20 green left"},
                                                              {639.99 / 642, 0.3, 0.5, "641,20 641,20 red"},
                                                              {640.01 / 642, 0.7, 0.7499, "661,20 661,20 red left"},
                                                              {0.999999, 0.7, 0.75, "661,20 661,20 yellow left"}}) {
        TestField test("arcade");
        Spawn(test, {column, direction, colour});
        EXPECT_EQ(InShort(test.field), expected);
    }
}

TEST(CreateLine, SkipsTakenColumns) {
    // A dying beam takes up its column too, a head alone does not.
    TestField test("arcade", "41,20 50,29 blue dying; 61,200 90,229 blue; 100,200 81,219 blue");
    EXPECT_EQ(Spawn(test, {1.5 * 20 / 642, 2.5 * 20 / 642, 3.5 * 20 / 642})->XStart, 81);
    for (int column = 0; column < 33; ++column)
        if (column != 7) AddBeams(test.field, std::to_string(21 + 20 * column) + ",100 300,300 blue");
    EXPECT_EQ(Spawn(test, {0.5, 7.5 * 20 / 642})->XStart, 161) << "one is free";
    EXPECT_EQ(Spawn(test, {0.125}), nullptr);
    EXPECT_EQ(test.dice.numbers.size(), 1U) << "no number is drawn when none is free";
}

TEST(SplitLine, ContinuesWithTheNextSegmentOfTheChain) {
    for (const auto& [from, stopped, expected] :
         {std::tuple{"100,100 150,150 yellow 3 dying #7", "100,100 150,150 yellow stopped 3 dying #7",
                     "150,150 150,150 yellow left #7"},
          {"100,100 50,150 yellow #7", "100,100 50,150 yellow stopped #7", "50,150 50,150 yellow #7"}}) {
        TestField test("puzzle", from);
        CLine& source = test.Beam(1);
        CLine& segment = SplitLine(test.field, source);
        EXPECT_EQ(InShort(test.field), std::string(stopped) + "; " + expected);
        EXPECT_EQ(segment.LinkedLines, std::vector<CLine*>{&source});
        EXPECT_EQ(source.LinkedLines, std::vector<CLine*>{&segment});
    }
}

}  // namespace
}  // namespace prismfall
