// How beams come into play, and how fast.
#include "simulation/BeamSpawning.h"

#include <gtest/gtest.h>

#include "tests/support/TestField.h"

namespace prismfall {
namespace {

CLine* Spawn(TestField& field, std::initializer_list<double> numbers) {
    for (const double number : numbers) field.Machine().QueueRandom(number);
    return CreateLine(field.Main(), nullptr, false, 20);
}

TEST(CreateLine, ARandomBeamByItsNumbers) {
    for (const auto& [column, direction, colour, expected] : {std::tuple{0.0, 0.0, 0.0, "21,20 21,20 blue"},
                                                              {19.999 / 642, 0.5, 0.2499, "21,20 21,20 blue"},
                                                              {20.001 / 642, 0.50001, 0.25, "41,20 41,20 green left"},
                                                              {0.5, 0.99, 0.4999, "341,20 341,20 green left"},
                                                              {639.99 / 642, 0.3, 0.5, "641,20 641,20 red"},
                                                              {640.01 / 642, 0.7, 0.7499, "661,20 661,20 red left"},
                                                              {0.999999, 0.7, 0.75, "661,20 661,20 yellow left"}}) {
        TestField field(kArcadeGame);
        const CLine* beam = Spawn(field, {column, direction, colour});
        EXPECT_EQ(InShort(field.Main()), expected);
        EXPECT_EQ(beam->XStartOrg, beam->XStart);
    }
}

TEST(CreateLine, PassesOverColumnsThatAreTaken) {
    // A dying beam takes its column too, a head takes none.
    TestField field(kArcadeGame, "41,20 50,29 blue dying; 61,200 90,229 blue; 100,200 81,219 blue");
    EXPECT_EQ(Spawn(field, {1.5 * 20 / 642, 2.5 * 20 / 642, 3.5 * 20 / 642})->XStart, 81);
    for (int column = 0; column < 33; ++column)
        if (column != 7) field.Add(std::to_string(21 + 20 * column) + ",100 300,300 blue");
    EXPECT_EQ(Spawn(field, {0.5, 7.5 * 20 / 642})->XStart, 161) << "one is free";
    EXPECT_EQ(Spawn(field, {0.125}), nullptr);
    EXPECT_EQ(field.Machine().Random(), 0.125) << "no number is drawn when none is free";
    LineCreator_Timer(field.Main());
    EXPECT_EQ(field.Main().Lines.size(), 37U);
}

TEST(CreateLine, TheNextSegmentOfAChain) {
    for (const auto& [mode, simulate, from, expected] :
         {std::tuple{kArcadeGame, false, "100,100 150,150 yellow stopped 3 dying #7", "150,150 150,150 yellow left"},
          {kPuzzleGame, false, "100,100 50,150 yellow #7", "50,150 50,150 yellow #7"},
          {kSolutionReplay, true, "100,100 150,150 red #7", "150,150 150,150 red left #7"}}) {
        TestField field(mode, from);
        CLine& source = field.Beam(1);
        CLine* segment = CreateLine(field.Main(), &source, simulate, 99);
        EXPECT_EQ(InShort(*segment) + InShort(source), std::string(expected) + from);
        EXPECT_EQ(segment->LinkedLines, std::vector<CLine*>{&source});
        EXPECT_EQ(source.LinkedLines, std::vector<CLine*>{segment});
        EXPECT_EQ(field.Main().Lines.size(), simulate ? 1U : 2U);
    }
}

TEST(SetLevelSpeed, IntervalsByLevel) {
    TestField field(kArcadeGame);
    const auto& timers = field.Machine().Timers();
    for (const auto& [level, creator, extender] :
         {std::tuple{-5, 2500, 75}, {1, 2500, 75}, {5, 1024, 31}, {23, 18, 1}, {32767, 1, 1}}) {
        field.Main().Level = static_cast<std::int16_t>(level);
        SetLevelSpeed(field.Main());
        EXPECT_EQ(timers.Interval(Timer::LineCreator), creator) << "level " << level;
        EXPECT_EQ(timers.Interval(Timer::LineExtender), extender) << "level " << level;
    }
}

}  // namespace
}  // namespace prismfall
