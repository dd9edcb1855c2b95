#include "simulation/BeamSpawning.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "simulation/Playfield.h"

namespace prismfall {

namespace {

constexpr int kFirstColumn = 21;
constexpr int kColumnStep = 20;
constexpr int kColumnCount = 33;
constexpr int kSpawnRange = 642;  // pixels that the random column is drawn from; the last column has only two of them
constexpr int kMostTries = 1000;

// Upper bounds of the random number for colors 0 to 2; the rest is color 3.
constexpr std::array<double, 3> kColorBounds = {0.25, 0.5, 0.75};

bool IsColumnTaken(const Field& field, int x) {
    return std::ranges::any_of(field.Lines, [x](const CLine* beam) { return beam->XStart == x; });
}

bool AreAllColumnsTaken(const Field& field) {
    for (int column = 0; column < kColumnCount; ++column)
        if (!IsColumnTaken(field, kFirstColumn + kColumnStep * column)) return false;
    return true;
}

std::optional<std::int16_t> FindFreeColumn(const Field& field) {
    if (AreAllColumnsTaken(field)) return std::nullopt;
    for (int tries = 0; tries < kMostTries; ++tries) {
        const double column = std::floor(field.chance.Random() * kSpawnRange / kColumnStep);
        const int x = kFirstColumn + kColumnStep * static_cast<int>(column);
        if (!IsColumnTaken(field, x)) return static_cast<std::int16_t>(x);
    }
    return std::nullopt;
}

double FreshRandom(Chance& chance) {
    chance.SeedRandomFromClock();
    return chance.Random();
}

Heading RandomHeading(Chance& chance) { return FreshRandom(chance) > 0.5 ? Heading::Leftwards : Heading::Rightwards; }

BeamColor RandomColor(Chance& chance) {
    const double random = FreshRandom(chance);
    return static_cast<BeamColor>(
        std::ranges::count_if(kColorBounds, [random](double bound) { return random >= bound; }));
}

// A growing beam of length 0.
BeamBody MakeSpot(std::int16_t x, std::int16_t y, Heading heading, BeamColor color) {
    return {.XStart = x,
            .XEnd = x,
            .YStart = y,
            .YEnd = y,
            .Direction = heading,
            .Color = color,
            .RunMode = Motion::Growing,
            .Thicknes = kLiveThicknes};
}

CLine& Append(Field& field, const BeamBody& body) {
    CLine& beam = field.Beams.Make(body);
    field.Lines.push_back(&beam);
    return beam;
}

}  // namespace

CLine* CreateLine(Field& field, std::int16_t StartY) {
    field.chance.SeedRandomFromClock();
    const std::optional<std::int16_t> column = FindFreeColumn(field);
    if (!column) return nullptr;
    const Heading heading = RandomHeading(field.chance);
    return &Append(field, MakeSpot(*column, StartY, heading, RandomColor(field.chance)));
}

BeamBody NextSegment(const BeamBody& beam) {
    BeamBody segment = MakeSpot(beam.XEnd, beam.YEnd, TurnedRound(beam.Direction), beam.Color);
    segment.PuzzleLineNr = beam.PuzzleLineNr;
    return segment;
}

CLine& SplitLine(Field& field, CLine& oLine) {
    oLine.RunMode = Motion::Stopped;
    field.chance.SeedRandomFromClock();  // for every new beam, random or not
    CLine& segment = Append(field, NextSegment(oLine));
    segment.LinkedLines.push_back(&oLine);
    oLine.LinkedLines.push_back(&segment);
    return segment;
}

}  // namespace prismfall
