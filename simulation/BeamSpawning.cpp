#include "simulation/BeamSpawning.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "simulation/Playfield.h"
#include "state/GameModes.h"

namespace prismfall {

namespace {

constexpr int kFirstColumn = 21;
constexpr int kColumnStep = 20;
constexpr int kColumnCount = 33;
constexpr int kSpawnRange = 642;  // pixels that the random column is taken from; the last column has only two of them
constexpr int kMostTries = 1000;

constexpr float kCreatorInterval = 2500.0F;
constexpr float kExtenderInterval = 75.0F;
constexpr float kLevelFactor = 0.8F;
constexpr std::int16_t kTopSpeedLevel = 64;  // from here on both intervals are at their shortest

// Upper bounds of the random number for colours 0 to 2; the rest is colour 3.
constexpr std::array<double, 3> kColourBounds = {0.25, 0.5, 0.75};

bool IsColumnTaken(const VMain& main, int x) {
    return std::ranges::any_of(main.Lines, [x](const CLine* beam) { return beam->XStart == x; });
}

bool AreAllColumnsTaken(const VMain& main) {
    for (int column = 0; column < kColumnCount; ++column)
        if (!IsColumnTaken(main, kFirstColumn + kColumnStep * column)) return false;
    return true;
}

std::optional<std::int16_t> FindFreeColumn(const VMain& main) {
    if (AreAllColumnsTaken(main)) return std::nullopt;
    for (int tries = 0; tries < kMostTries; ++tries) {
        const double column = std::floor(main.platform.Random() * kSpawnRange / kColumnStep);
        const int x = kFirstColumn + kColumnStep * static_cast<int>(column);
        if (!IsColumnTaken(main, x)) return static_cast<std::int16_t>(x);
    }
    return std::nullopt;
}

double FreshRandom(const VMain& main) {
    main.platform.SeedRandomFromClock();
    return main.platform.Random();
}

std::int32_t RandomColour(const VMain& main) {
    const double random = FreshRandom(main);
    return static_cast<std::int32_t>(
        std::ranges::count_if(kColourBounds, [random](double bound) { return random >= bound; }));
}

void ContinueChain(const VMain& main, CLine& beam, CLine& oLine) {
    beam.XStart = oLine.XEnd;
    beam.YStart = oLine.YEnd;
    beam.Direction = TurnedRound(oLine.Direction);
    beam.Color = oLine.Color;
    beam.DoubleSpeed = oLine.DoubleSpeed;
    beam.LinkedLines.push_back(&oLine);
    oLine.LinkedLines.push_back(&beam);
    if (IsPuzzle(main)) beam.PuzzleLineNr = oLine.PuzzleLineNr;
}

void StartInColumn(const VMain& main, CLine& beam, std::int16_t x, std::int16_t y) {
    beam.XStart = x;
    beam.XStartOrg = x;
    beam.YStart = y;
    beam.Direction = FreshRandom(main) > 0.5 ? kLeftwards : kRightwards;
    beam.Color = RandomColour(main);
}

void MakeLive(CLine& beam) {
    beam.Thicknes = kLiveThicknes;
    beam.XEnd = beam.XStart;
    beam.YEnd = beam.YStart;
    beam.RunMode = kGrowing;
}

int IntervalOf(float milliseconds) { return std::max(1, int{Rounded(milliseconds)}); }

}  // namespace

CLine* CreateLine(VMain& main, CLine* oLine, Boolean Simulate, std::int16_t StartY) {
    main.platform.SeedRandomFromClock();
    const std::optional<std::int16_t> column = oLine == nullptr ? FindFreeColumn(main) : std::nullopt;
    if (oLine == nullptr && !column) return nullptr;
    CLine& beam = Simulate ? main.LookAheadBeams.Make() : main.Beams.Make();
    if (oLine != nullptr) {
        ContinueChain(main, beam, *oLine);
    } else {
        StartInColumn(main, beam, *column, StartY);
    }
    MakeLive(beam);
    if (!Simulate) main.Lines.push_back(&beam);
    return &beam;
}

CLine& SplitLine(VMain& main, CLine& oLine) {
    oLine.RunMode = kStopped;
    return *CreateLine(main, &oLine, false, kSpawnHeight);
}

void SetLevelSpeed(const VMain& main) {
    float creator = kCreatorInterval;
    float extender = kExtenderInterval;
    for (std::int16_t level = 2; level <= std::min(main.Level, kTopSpeedLevel); ++level) {
        creator *= kLevelFactor;
        extender *= kLevelFactor;
    }
    main.platform.SetTimerInterval(Timer::LineCreator, IntervalOf(creator));
    main.platform.SetTimerInterval(Timer::LineExtender, IntervalOf(extender));
}

void LineCreator_Timer(VMain& main) { CreateLine(main, nullptr, false, kSpawnHeight); }

}  // namespace prismfall
